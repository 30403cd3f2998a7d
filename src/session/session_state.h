#pragma once

#include "session/data_store.h"
#include "session/settings.h"
#include "widgets/desk.h"
#include "widgets/screens.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace levora::document {
class Report;
}

namespace levora::session {

// Where things lie and who answers, for one start.
struct Surroundings {
    widgets::Desk& desk;
    Settings& settings;
    std::string program_folder; // without a trailing separator
    std::string command_line;
    std::string computer_name;         // as the machine has it
    KeptStores* kept_stores = nullptr; // of a process that starts again and again; outlives the session
};

// All that one start of the program shares between its screens: the session's variables under their
// own names, the screens, the desk. A second start sees nothing of the first.
class Session {
public:
    explicit Session(Surroundings surroundings);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    widgets::Desk& desk;
    Settings& settings;
    const std::string program_folder;
    const std::string command_line;
    const std::string machine_name;

    std::string SqlText;
    std::string CurrentFY;   // "2014-2015": the assessment year, the value of every FY column
    std::string AYStartYear; // its first four characters
    std::int32_t AssesseeNo = 0;
    std::string DataFolder; // with a trailing separator
    std::string TaxConnectString, AssesseeConnectString, ITConnectString, FormsConnectString;
    Connection TaxDb, AssesseeDb, ITDb, FormsDb;
    std::string ComputerName; // only on a network installation
    bool IsServerInstall = false;
    bool IsClientInstall = false;
    bool IsNetworkInstall = false;
    bool IsCompanyAssessee = false;
    bool UseResidentialAddress = false;
    bool BusinessAssetFlag = false;
    bool DeemedAssetFlag = false;
    std::string AssetRowName;
    std::int16_t OriFillMonthsLate = 0;
    float OriFillInterestRate = 0;
    // Shared by the procedure that fills a report and the preview that shows it.
    std::shared_ptr<document::Report> ChallanReport, FormBBReport, WealthReport;
    std::int16_t SheetRowCount = 0;
    std::string SheetGridName;
    std::uint8_t PrintSource = 0;
    std::uint8_t PreviewSource = 0;
    std::int16_t XmlIndent = 0;
    std::vector<std::string> XmlTagStack;
    std::int32_t XmlTagTop = 0;

    // 1 business asset, 2 deemed asset, 0 main schedule, from the two flags.
    [[nodiscard]] int asset_type() const;
    // The assessee's number as a statement names it: "17".
    [[nodiscard]] std::string assessee_text() const;

    // A variable by its name, for scripts: a text, number or truth; nothing for an object (null when
    // the name is unknown: found is false).
    struct Variable {
        bool found = false;
        std::variant<std::monostate, std::string, double, bool> value;
    };
    [[nodiscard]] Variable variable(std::string_view name) const;

    // Brings pending rows of all stores down, at the end of each outermost event.
    void commit_all() { commit_each(&Connection::commit); }
    // The same before a box waits for a person; rows that a fault has taken back stay in memory.
    void commit_before_waiting() { commit_each(&Connection::commit_unless_lost); }
    // Takes the pending rows of all stores back when memory runs out; true when there were any.
    bool take_back_all() noexcept;
    // The report of an error was dismissed. Where it cost rows, nothing of this event goes down in that
    // store; where memory had run out, in none.
    void give_up_after(const Failure& error) noexcept;
    // How many reports have been dismissed so far: whoever started a save learns that it is not whole.
    [[nodiscard]] int given_up() const { return given_up_; }

    // What a screen's preview button asks of the reports, by the report's name: "Challan282", "FormBB",
    // "RepWealthTax". Reports lie above the screens and register themselves here.
    std::map<std::string, std::function<void()>> paper;
    // Sends a filled report to the chosen printer: the desktop in earnest, a script records it.
    std::function<void(const std::shared_ptr<document::Report>&)> print_report;

private:
    int given_up_ = 0;
    void commit_each(void (Connection::*commit)());
    void end_event() noexcept;

public:
    // Last: its screens refer to all of the above and go first.
    widgets::Screens screens;
};

// A screen of this program: a form with the session behind it.
class Screen : public widgets::Form {
public:
    Screen(Session& session, std::string name, std::string caption);

protected:
    Session& session_;
};

} // namespace levora::session
