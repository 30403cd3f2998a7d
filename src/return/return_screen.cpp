#include "return/return_screen.h"

#include "return/ereturn.h"
#include "session/common_services.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace levora::form_ba {

using widgets::Color;
using widgets::Control;
using widgets::Grid;
using widgets::ListStyle;
using widgets::TickBox;

namespace {

constexpr unsigned blue_rgb = 0x0000FF;
constexpr unsigned red_rgb = 0xFF0000;

Grid make_grid(frmFormBA& form, const ReturnGrid& table) {
    return Grid(form, std::string(table.name), static_cast<int>(table.columns.size()), table.rows,
                std::string(table.heading));
}

// "INDIA", then every country of the table.
std::vector<std::string> country_items() {
    std::vector<std::string> items = session::country_names();
    items.insert(items.begin(), "INDIA");
    return items;
}

// The first control of each tab, in the order of the screen's declaration: a control belongs to the
// tab whose first control stands before it.
constexpr std::array<std::string_view, 6> first_of_tab{"txtFirstName",     "txtAggImmovableProperty",
                                                       "sprScheduleBTP",   "sprJewellery",
                                                       "sprAssetInterest", "sprScheduleOPR"};
constexpr std::string_view first_below_tabs = "cmdFillFromComputation";

} // namespace

frmFormBA::frmFormBA(session::Session& session)
    : Screen(session, "frmFormBA", "Form BA - Return Of Net Wealth"),
      cboState(*this, "cboState", ListStyle::pick, "State", session::state_names()),
      cboCountry(*this, "cboCountry", ListStyle::pick, "Country", country_items()),
      cboSex(*this, "cboSex", ListStyle::pick, " Sex (M/F)", {"Male", "Female"}),
      cboStatus(*this, "cboStatus", ListStyle::pick, "Status* ",
                {"Individual", "Hindu Undivided Family", "Companies"}),
      cboResStatus(*this, "cboResStatus", ListStyle::pick, " Residential Status*",
                   {"Resident", "Non-Resident", "R-NOR"}),
      cboCitizen(*this, "cboCitizen", ListStyle::pick, "Whether citizen of India?", {"Yes", "No"}),
      cboReturnType(*this, "cboReturnType", ListStyle::pick, " Whether Original or Revised Return? ",
                    {"Original", "Revised"}),
      cboReturnCode(*this, "cboReturnCode", ListStyle::pick, "Return Filing Code",
                    {"21- On or before due date u/s 14(1)", "22- After due date u/s 15",
                     "23- Revised Return u/s 15", "24- In response to notice u/s 16(4)(i)",
                     "25- In response to notice u/s 17(1)"}),
      cboApplicableSec(*this, "cboApplicableSec", ListStyle::pick, "Applicable Section",
                       {"19(1)", "19(2)", "21A", "21AA(1)", "22(1)"}),
      cboAccountType(*this, "cboAccountType", ListStyle::pick, "Type of Account", {"Saving", "Current"}),
      cboAudited(*this, "cboAudited", ListStyle::pick, " Due date of filing Wealth Tax Return",
                 {"31st July", "30th September", "30th November"}),
      sprScheduleBTP(make_grid(*this, schedule_btp)),
      sprImmovableProperty(make_grid(*this, immovable_property)),
      sprMovableProperty(make_grid(*this, movable_property)), sprJewellery(make_grid(*this, jewellery)),
      sprPreciousStone(make_grid(*this, precious_stone)),
      sprInducibleNetWealth(make_grid(*this, inducible_net_wealth)),
      sprAssetInterest(make_grid(*this, asset_interest)),
      sprAssetsClaimedExempt(make_grid(*this, assets_claimed_exempt)),
      sprScheduleOPR(make_grid(*this, schedule_opr)),
      txtMovTotalDeposit(*this, "txtMovTotalDeposit",
                         "(I) Total amount of deposits in Bank accounts (FDRs, Term Deposits and all other "
                         "types of Deposits including saving accounts), with Financial Institutions, Non "
                         "Banking Financial Companies and Cooperative societies."),
      txtMovAmtBondInvestment(*this, "txtMovAmtBondInvestment",
                              "(II) Amount of investment in Bonds, Debentures/shares and units in "
                              "companies/Mutual Funds"),
      txtMovAmtPostal(*this, "txtMovAmtPostal",
                      "(III) Amount of investment in NSS, Postal Savings, Insurance Policies and investment "
                      "in any Financial Instrument in Post office or Insurance Company."),
      txtMovAmtFirm(*this, "txtMovAmtFirm",
                    "(IV) Total amount of loans/advance given to any person or entity including firm, "
                    "Company,Trust etc. and other receivables from debtors."),
      txtMovAmtOther(*this, "txtMovAmtOther",
                     "(V) Any other property including value of Claims/interest etc.") {
    chkFirstReturnYes.label = chkFirstReturnNo.label = " Is this your first return?";
    chkAssessedToITYes.label = chkAssessedToITNo.label = " Are you assessed to Income Tax ?";
    ChkCapacityReprYes.label = ChkCapacityReprNo.label =
        "Whether this return is being filed by a person in a special case referred to in Chapter V?";
    frPreciousStone.set_visible(false);
    design_grids();
    connect_chain();
    tell_fills();
    connect_grid_keys();
    connect_filing_status();
    connect_buttons();
}

void frmFormBA::design_grids() {
    design_grid(sprScheduleBTP, schedule_btp);
    design_grid(sprImmovableProperty, immovable_property);
    design_grid(sprMovableProperty, movable_property);
    design_grid(sprJewellery, jewellery);
    design_grid(sprPreciousStone, precious_stone);
    design_grid(sprInducibleNetWealth, inducible_net_wealth);
    design_grid(sprAssetInterest, asset_interest);
    design_grid(sprAssetsClaimedExempt, assets_claimed_exempt);
    design_grid(sprScheduleOPR, schedule_opr);

    using namespace other_person_column;
    for (const int column : {value, debt})
        sprInducibleNetWealth.set_cell_formula(column, total_row, {{column, 1, column, total_row - 1}},
                                               widgets::sum_formula);
    sprInducibleNetWealth.set_label(other_person_column::name, total_row, "Total");
    for (int column = 1; column <= sprInducibleNetWealth.columns(); ++column) {
        sprInducibleNetWealth.set_cell_locked(column, total_row, true);
        sprInducibleNetWealth.set_cell_backcolor(column, total_row, widgets::grey_rgb);
    }
}

// A schedule that can't be read ends the opening, not the screen: what was filled so far shows.
void frmFormBA::Form_Load() {
    session::procedure(session_, "frmFormBA - Form_Load", [this](const session::Attempt& attempt) {
        mskAY.set_text(session_.CurrentFY);
        ReturnFilePath = working_copy_path(session_);
        std::error_code not_there;
        if (std::filesystem::is_regular_file(ReturnFilePath, not_there)) {
            unread_copy_ = ReturnFilePath;
            if (LoadXmlFile(ReturnFilePath)) unread_copy_.clear();
            lblFillFrom.set_caption("Filled from Saved Data");
            lblFillFrom.set_forecolor(red_rgb);
        } else {
            FillFromAssessee();
            attempt([this] { FillFromSchedules(); });
            lblFillFrom.set_caption("Filled from Computation");
            lblFillFrom.set_forecolor(blue_rgb);
        }
        cmdSave.set_enabled(true);
    });
}

// What was found in the return goes with it.
void frmFormBA::Form_Unload() {
    session_.screens.unload("frmReturnCheck");
}

int frmFormBA::tab_of(const Control& control) const {
    int tab = -1;
    for (const Control* each : controls()) {
        if (each->name() == first_below_tabs) tab = -1;
        for (std::size_t i = 0; i < first_of_tab.size(); ++i)
            if (each->name() == first_of_tab[i]) tab = static_cast<int>(i);
        if (each == &control) return tab;
    }
    return -1;
}

void frmFormBA::connect_filing_status() {
    cboReturnType.on_click = [this] {
        const bool original = cboReturnType.text() == "Original";
        txtReceiptNo.set_locked(original);
        mskOriFillDate.set_enabled(!original);
        txtReceiptNo.set_backcolor(original ? Color(widgets::grey_rgb) : Color());
        mskOriFillDate.set_backcolor(txtReceiptNo.backcolor());
    };

    // Ticking one unticks its partner; unticking leaves the partner as it is.
    const auto pair = [](TickBox& yes, TickBox& no) {
        yes.on_click = [&yes, &no] {
            if (yes.ticked()) no.set_value(0);
        };
        no.on_click = [&yes, &no] {
            if (no.ticked()) yes.set_value(0);
        };
    };
    pair(chkFirstReturnYes, chkFirstReturnNo);
    pair(chkAssessedToITYes, chkAssessedToITNo);
    pair(ChkCapacityReprYes, ChkCapacityReprNo);

    // Wanted: only this one of the three number masks keeps the focus while it is half filled.
    mskPAN.on_leave = [this] { return mskPAN.is_empty() || mskPAN.text().find('_') == std::string::npos; };
    mskOriFillDate.on_leave = [this] {
        mskOriFillDate_LostFocus();
        return true;
    };
    for (widgets::TextField* field : {&txtNetWealthTax, &txtLateFilingInterest})
        field->set_key_filter(widgets::is_amount_key);
}

void frmFormBA::mskOriFillDate_LostFocus() {
    const std::optional<Date> filed = parse_date(mskOriFillDate.text());
    const std::optional<Date> valued = parse_date(mskValuationDate.text());
    if (!filed || !valued) return;
    int months = 0;
    if (*filed > *valued)
        months = filed->year == valued->year && filed->month == valued->month
                     ? 1
                     : std::max(0, months_between(next_day(*filed), *valued) + 1);
    session_.OriFillMonthsLate = static_cast<std::int16_t>(months);
    session_.OriFillInterestRate = session_.AYStartYear < "2003" ? 1.25F : 1.0F; // percent a month
}

void frmFormBA::connect_buttons() {
    cmdFillFromComputation.on_click = [this] { cmdFillFromComputation_Click(); };
    cmdSave.on_click = [this] { cmdSave_Click(); };
    btnGenerate.on_click = [this] { btnGenerate_Click(); };
    btnImport.on_click = [this] { btnImport_Click(); };
    cmdValidatitor.on_click = [this] { cmdValidatitor_Click(); };
    cmdPreview.on_click = [this] {
        if (const auto report = session_.paper.find("FormBB"); report != session_.paper.end())
            report->second();
    };
    cmdPrint.on_click = [this] { cmdPrint_Click(); };
    cmdClose.on_click = [this] { cmdClose_Click(); };
    cmdOK.on_click = [this] { frPreciousStone.set_visible(false); };
    sprJewellery.on_button_click = [this](int, int) {
        frPreciousStone.set_visible(true);
        frPreciousStone.bring_to_front();
    };
    mnuPreviewSheet.on_click = [this] { preview_active_sheet(); };
    mnuPrintSheet.on_click = [this] { print_active_sheet(); };
}

void frmFormBA::cmdFillFromComputation_Click() {
    lblFillFrom.set_caption("Filled from Computation");
    lblFillFrom.set_forecolor(blue_rgb);
    FillFromAssessee();
    FillFromSchedules();
}

void frmFormBA::cmdPrint_Click() {
    // Wanted: the report of a failure carries another screen's name.
    session::procedure(session_, "frmForm2D - cmdPrint_Click", [this](const session::Attempt& attempt) {
        session_.PrintSource = 2; // the return
        attempt([this] {
            try {
                session_.screens.show("frmPrint", widgets::Showing::modal);
            } catch (const Failure& error) {
                if (error.number != error_number::printer_cancelled) throw;
            }
        });
    });
}

void frmFormBA::cmdClose_Click() {
    session_.screens.unload("frmITMDIParent");
    if (session_.screens.find("frmFormBA")) session_.screens.unload("frmFormBA");
}

} // namespace levora::form_ba
