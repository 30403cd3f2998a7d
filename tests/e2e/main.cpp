#include "e2e/person.h"

#include "desktop/look.h"
#include "session/data_folder.h"

#include <QFile>
#include <QThread>

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string_view>

// One client from the first figure to the filed return, in real windows. The arguments are the folder for
// the pictures of the screens, and the palette.
namespace levora::desktop::testing {

namespace {

using session::Store;

void assets(Person& person) {
    person.click("cmdAssets");
    person.await_screen("frmImmovable");
    // A house in Mumbai let for 6,00,000: 85 % of the rent, ten times, and 40 % for the unbuilt area.
    person.type("cboNumberOfProperty", "1");
    person.type_cell("sprImmovable", 2, 3, "Mumbai");
    person.click_cell("sprImmovable", 2, 11);
    person.type_cell("sprAnnualRent", 2, 1, "600000");
    person.expect("txtTotalAnnualRent", "600000");
    person.picture("annual_rent");
    person.click("cmdOKAnnualRent");
    person.expect_cell("sprImmovable", 2, 18, "51,00,000");
    person.click_cell("sprImmovable", 2, 21);
    person.type_cell("sprUnbuiltArea", 2, 2, "200");
    person.type_cell("sprUnbuiltArea", 2, 1, "1000");
    person.picture("unbuilt_area");
    person.click("cmdUnbuiltAreaOk");
    person.type_cell("sprImmovable", 2, 28, "140000");
    person.expect_cell("sprImmovable", 2, 29, "70,00,000");
    person.expect("txtImmovableNetAmount", "7000000");
    person.picture("frmImmovable");
    person.choose_tab("SSTabAsset", 1);
    person.picture("urban_land");
    person.choose_tab("SSTabAsset", 2);
    person.type_cell("sprMovableProp", 2, 1, "900000");
    person.picture("movable");
    person.choose_tab("SSTabAsset", 3);
    person.type_cell("sprAssetInterest", 1, 1, "Verma and Co");
    person.type_cell("sprAssetInterest", 6, 1, "750000");
    person.expect("txtTotalInterestInFirm", "750000");
    person.picture("firm");
    person.choose_tab("SSTabAsset", 4);
    person.type("cboNumberOfJewellery", "1");
    person.type_cell("sprJewellary", 2, 1, "Gold necklace");
    person.type_cell("sprJewellary", 2, 7, "640000");
    person.click_cell("sprJewellary", 2, 5);
    person.type_cell("sprPreciousStone", 1, 1, "Ruby");
    person.type_cell("sprPreciousStone", 3, 1, "85000");
    person.picture("stones");
    person.click("btnOK");
    person.expect_cell("sprJewellary", 2, 6, "85,000");
    person.expect("txtTotalNetAmount", "9290000");
    person.picture("frmImmovable_jewellery");
    person.click("cmdOK");
    person.await_screen("frmWealthMain");
    person.expect("txtAssetsSec2ea", "9290000");
}

void other_screens(Person& person) {
    person.click("cmdDeemedAssets");
    person.await_screen("frmDeemedAsset");
    person.type_cell("sprDeemedAsset", 3, 1, "Rohan Verma");
    person.type_cell("sprDeemedAsset", 4, 1, "Minor son");
    person.type_cell("sprDeemedAsset", 6, 1, "400000");
    person.picture("frmDeemedAsset");
    person.click("cmdDeemedAssetOk");
    person.await_screen("frmWealthMain");
    person.click("cmdExemptedAsset");
    person.await_screen("frmAssetExempt");
    person.choose_cell("sprAssetExempt", 1, 1, "One house");
    person.type_cell("sprAssetExempt", 2, 1, "1500000");
    person.picture("frmAssetExempt");
    person.click("cmdOK");
    person.await_screen("frmWealthMain");
    person.expect("txtExemptedAssets", "1500000");
}

void sheet(Person& person) {
    person.type("txtLessDebt", "190000");
    person.expect("txtNetWealth", "9500000");
    person.expect("txtTaxableWealth", "6500000");
    person.expect("txtWealthTaxLiability", "65000");
    person.picture("frmWealthMain");
    person.click("txtNetWealth");
    person.keys({QStringLiteral("F1")});
    person.picture("why");
    person.keys({QStringLiteral("Escape")});
    person.click("cmdSATaxPayable");
    person.type_cell("sprSATax", 1, 1, "State Bank");
    person.type_cell("sprSATax", 3, 1, "0002345");
    person.type_cell("sprSATax", 4, 1, "15/07/2014");
    person.type_cell("sprSATax", 6, 1, "40000");
    person.expect("txtPrepaidTax", "40000");
    person.picture("prepaid_taxes");
    person.keys({QStringLiteral("ctrl+s")});
}

void preview(Person& person, const char* name) {
    person.click("cmdPreview");
    person.await_screen("frmRepPreview");
    person.picture(name);
    person.keys({QStringLiteral("alt+F4")});
    person.await_gone("frmRepPreview");
}

void papers(Person& person, const QString& xml) {
    preview(person, "frmRepPreview");
    person.await_screen("frmWealthMain");
    person.click("cmdformBA");
    person.await_screen("frmFormBA");
    person.picture("frmFormBA");
    for (int page = 1; page < 6; ++page) {
        person.choose_tab("SSTab1", page);
        person.picture("frmFormBA_" + std::to_string(page + 1));
    }
    person.click("btnGenerate");
    person.name_file(xml);
    person.answer("", QStringLiteral("OK"));
    preview(person, "form_bb");
    person.await_screen("frmFormBA");
    person.keys({QStringLiteral("ctrl+w")});
    person.await_screen("frmWealthMain");
}

constexpr const char* saved_challans = "Select AssesseeNo, Total From Challan";

void challan(Person& person, const session::testing::DataFolder& folder) {
    person.click("cmdChallan");
    person.await_screen("frmChallan282");
    person.click("optWealthTax");
    person.type("txtIncomeTax", "10000");
    person.expect("txtTotal", "10,000");
    person.picture("frmChallan282");
    preview(person, "challan_itns_282");
    person.await_screen("frmChallan282");
    person.click("cmdPrint");
    person.await_screen("frmPrint");
    person.picture("frmPrint");
    person.click("cmdCancel");
    person.await_screen("frmChallan282");
    person.click("cmdSave");
    person.await("the challan in its list",
                 [&] { return !folder.rows(Store::forms, saved_challans).empty(); });
    person.keys({QStringLiteral("alt+F4")});
    person.await_gone("frmChallan282");
    person.await_screen("frmWealthMain");
}

// Another run of the program finds all of it.
void everything_again(Person& person) {
    person.await_screen("frmWealthMain");
    person.expect("txtNetWealth", "9500000");
    person.expect("txtPrepaidTax", "40000");
    person.click("cmdAssets");
    person.await_screen("frmImmovable");
    person.expect_cell("sprImmovable", 2, 3, "Mumbai");
    person.expect_cell("sprImmovable", 2, 29, "70,00,000");
    person.expect_cell("sprMovableProp", 2, 1, "9,00,000");
    person.expect_cell("sprAssetInterest", 1, 1, "Verma and Co");
    person.expect_cell("sprJewellary", 2, 6, "85,000");
    person.expect("txtTotalNetAmount", "9290000");
    person.click("cmdOK");
    person.await_screen("frmWealthMain");
    person.click("cmdDeemedAssets");
    person.await_screen("frmDeemedAsset");
    person.expect_cell("sprDeemedAsset", 3, 1, "Rohan Verma");
    person.click("cmdDeemedAssetCancel");
    person.await_screen("frmWealthMain");
}

void leave(Person& person) {
    person.click("cmdMainExit");
    person.await_end();
}

void whole_story(Person& person, const session::testing::DataFolder& folder) {
    const RunOptions options{folder.path() + "/settings.toml", folder.path(), folder.path(),
                             "2014-2015 17 Individual x 0"};
    person.start(options);
    person.await_screen("frmWealthMain");
    person.picture("empty_sheet");
    assets(person);
    other_screens(person);
    sheet(person);
    const std::string xml = folder.path() + "/return.xml";
    papers(person, QString::fromStdString(xml));
    challan(person, folder);
    leave(person);
    if (folder.rows(Store::tax, "Select AssesseeNo, LessDebt From NetWealthComputation") != "17|190000")
        throw NotSeen("the sheet in its store");
    if (folder.rows(Store::forms, saved_challans) != "17|10000") throw NotSeen("one challan of 10,000");
    QFile file(QString::fromStdString(xml));
    if (!file.open(QIODevice::ReadOnly) || !file.readAll().contains(":PAN>ABCPV1234K</"))
        throw NotSeen("the client's PAN in the XML file");
    person.start(options);
    everything_again(person);
    leave(person);
}

} // namespace

int run(const QString& pictures) {
    const session::testing::DataFolder folder;
    std::filesystem::create_directory_symlink(LEVORA_REPORTS, folder.path() + "/Report");
    folder.run(
        Store::assessee,
        "INSERT INTO AssesseeInfo (AssesseeNo, Assessee_Name, FirstName, LastName, Father_Name, PAN, Status,"
        " Residential_Status, Sex, Address1, Address2, City, District, State, Pin, Ward, Date_of_Birth)"
        " VALUES (17, 'Asha Verma', 'Asha', 'Verma', 'Anand Verma', 'ABCPV1234K', 0, 0, 1, '14',"
        " 'Sea View', 'Mumbai', 'Mumbai', 'MAHARASHTRA', '400050', 'Ward 3(2)', '1962-05-14')");
    int result = 1;
    std::unique_ptr<QThread> thread(QThread::create([&] {
        Person person(pictures);
        try {
            whole_story(person, folder);
            result = 0;
        } catch (const std::exception& fault) {
            std::cerr << "not seen: " << fault.what() << "\n";
            std::_Exit(1); // the program may wait in a box for a person who has given up
        }
    }));
    QObject::connect(thread.get(), &QThread::finished, qApp, &QCoreApplication::quit);
    thread->start();
    QApplication::exec();
    thread->wait();
    return result;
}

} // namespace levora::desktop::testing

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::cerr << "usage: levora_e2e PICTURE_FOLDER [light|dark]\n";
        return 2;
    }
    const bool dark = argc == 3 && std::string_view(argv[2]) == "dark";
    int own_argc = 1;
    QApplication application(own_argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationDisplayName(QStringLiteral("Levora Wealth Tax"));
    levora::desktop::apply_look(application,
                                dark ? levora::desktop::Shade::dark : levora::desktop::Shade::light);
    return levora::desktop::testing::run(QString::fromLocal8Bit(argv[1]));
}
