#include "tools/sample_clients.h"

#include "session/common_services.h"
#include "session/data_folder.h"
#include "session/store_check.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>

#include <sys/wait.h>

namespace levora::tools {
namespace {

using session::Store;
using session::testing::DataFolder;

// A shell command's output, both streams, and its exit status behind it.
std::string shell(const std::string& command) {
    std::FILE* pipe = ::popen((command + " 2>&1").c_str(), "r");
    std::string text;
    std::array<char, 512> buffer{};
    while (std::fgets(buffer.data(), buffer.size(), pipe))
        text += buffer.data();
    const int status = ::pclose(pipe);
    return text + "exit " + std::to_string(WEXITSTATUS(status));
}

TEST(SampleClientsTest, FitTheStoresAndTheirFiguresAgree) {
    const DataFolder folder;
    add_sample_clients(folder.path());
    EXPECT_TRUE(session::find_faults(folder.path()).empty());
    // Assets, net wealth, tax, interest, paid, balance and refund, worked out by hand.
    EXPECT_EQ(
        folder.rows(Store::tax,
                    "SELECT AssesseeNo, AssetsValue, DeemedAssetsValue, LessDebt, NetWealth, TaxOnNetWealth, "
                    "Interest, PrepainTaxInterest, BalanceTaxPayable, Refund "
                    "FROM NetWealthComputation"),
        "101|16867250|300000|450000|16717250|137173|0|100000|37173|0; "
        "102|17830000|0|0|17830000|148300|0|148300|0|0; "
        "103|20485000|0|1000000|19485000|164850|0|150000|14850|0; "
        "104|5685000|0|0|5685000|26850|0|65000|0|38150; "
        "105|10501875|0|0|10501875|75019|2251|77270|0|0");
    // The summary of the assets screen is that of its schedules.
    std::string sum = "0";
    for (const char* part : {"sum(NetValue) FROM [Immovable Property Details] s WHERE s.AssetType = 0 AND",
                             "sum(NetAmount) FROM [Urban Land] s WHERE s.AssetType = 0 AND",
                             "sum(NetAmount) FROM [Movable Property Details] s WHERE s.AssetType = 0 AND",
                             "sum(NetAmount) FROM InterestInFirmOrAOP s WHERE s.AssetType = 0 AND",
                             "sum(ValueTobeTaken) FROM BusinessAsset s WHERE",
                             "sum(CAST(NetAmt AS NUMERIC)) FROM jewellery s WHERE"})
        sum += " + coalesce((SELECT " + std::string(part) + " s.AssesseeNo = a.AssesseeNo), 0)";
    EXPECT_EQ(folder.rows(Store::tax, "SELECT AssesseeNo FROM [Asset Details] a WHERE AssetType = 0 AND "
                                      "TotalNetAsset <> " +
                                          sum),
              "");
    EXPECT_EQ(folder.rows(
                  Store::tax,
                  "SELECT p.AssesseeNo, p.PropertyNo, p.AnnualRent FROM [Immovable Property Details] p WHERE "
                  "EXISTS (SELECT 1 FROM [Annual Rent] r WHERE r.AssesseeNo = p.AssesseeNo AND r.PropertyNo "
                  "= p.PropertyNo)"),
              "101|1|580000; 105|1|759000");
}

TEST(SampleClientsTest, AreAddedWholeOrNotAtAll) {
    const DataFolder folder;
    folder.run(Store::tax, "INSERT INTO Enclosure (AssesseeNo) VALUES (104)");
    EXPECT_EQ(session::testing::failure_of([&] { add_sample_clients(folder.path()); }),
              "75 " + folder.path() + ": assessee 104 is there already");
    EXPECT_EQ(folder.rows(Store::assessee, "SELECT * FROM AssesseeInfo"), "");
}

TEST(DataToolTest, TellsSuccessFaultAndWrongCallByItsExitStatus) {
    const std::string tool = std::string(LEVORA_BIN) + "/levora-wealth-data ";
    const DataFolder around;
    const std::string folder = around.path() + "/made";
    EXPECT_EQ(shell(tool + "create " + folder), folder + ": four empty stores made\nexit 0");
    EXPECT_EQ(shell(tool + "sample " + folder), folder + ": sample clients added\nexit 0");
    EXPECT_EQ(shell(tool + "check " + folder), folder + ": no fault found\nexit 0");
    EXPECT_EQ(shell(tool + "sample " + folder),
              "levora-wealth-data: " + folder + ": assessee 101 is there already\nexit 1");
    EXPECT_EQ(shell(tool + "backup " + folder + " " + folder + ".bak && " + tool + "restore " + folder +
                    ".bak " + folder + "2 && " + tool + "export " + folder + "2 103 " + folder +
                    ".client && " + tool + "create " + folder + "3 && " + tool + "import " + folder +
                    ".client " + folder + "3"),
              folder + ".bak: " + folder + " as it stands now\n" + folder + "2: restored from " + folder +
                  ".bak\n" + folder + ".client: assessee 103\n" + folder + "3: four empty stores made\n" +
                  folder + "3: assessee 103 brought in\nexit 0");
    std::filesystem::remove(folder + "/LVForms.db");
    EXPECT_EQ(shell(tool + "check " + folder), "LVForms: Could not find file '" + folder +
                                                   "/LVForms.db': No such file or directory.\n" + folder +
                                                   ": faults found\nexit 1");
    for (const char* wrong :
         {"", "create", "create a b", "fill a", "export " /* a word for a number */ "f x y"})
        EXPECT_TRUE(shell(tool + wrong).ends_with("exit 2")) << wrong;
    EXPECT_TRUE(shell(tool + "--help").ends_with("exit 0"));
}

} // namespace
} // namespace levora::tools
