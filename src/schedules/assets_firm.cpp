#include "schedules/assets_firm.h"

#include "schedules/assets_screen.h"
#include "schedules/schedule_field.h"
#include "session/table_rows.h"

#include <array>
#include <string>
#include <unordered_map>

namespace levora::schedules {

using session::Attempt;
using session::RowSet;
using widgets::CellDesign;

namespace {

CellDesign any_text() {
    return widgets::text_cell();
}
CellDesign pan() {
    return widgets::mask_cell("UUUUU9999U");
}
CellDesign ratio() {
    return widgets::number_cell(0, 100, 1);
}
CellDesign amount() {
    return widgets::number_cell(0, 99999999, 0, true);
}

// clang-format off
constexpr std::array<ScheduleField, 8> fields{{
    {"Name(s) of Firm / AOP",           any_text, Ground::plain, FieldStore::text, "NameAddressofFirm", 26},
    {"Firm / AOP Address",              any_text, Ground::plain, FieldStore::text, "AddressofFirm", 26},
    {"PAN of Firm/AOP",                 pan,      Ground::plain, FieldStore::text, "PANOfFirm", 14},
    {"Name of other partners / members", any_text, Ground::plain, FieldStore::text, "NameOfPartner", 26},
    {"Assessees Profit Sharing Ratio",  ratio,    Ground::plain, FieldStore::amount, "ProfitSharingRatio", 12},
    {"Value of the Assessee's Interest in the Assets of Firm / AOP as per Schedule-III", amount, Ground::plain, FieldStore::amount, "ValueOfInterest", 18},
    {"Debts owed in relation to such Interest", amount, Ground::plain, FieldStore::amount, "DebtOwed", 18},
    {"Net Amount  [ (d) - (e) ]",       amount,   Ground::locked, FieldStore::amount, "NetAmount", 18},
}};
// clang-format on

constexpr int rows_at_first = 5;
// Wanted: the rows of the design alone compute a net amount; one for later rows would change totals
// that were filed.
constexpr int rows_with_formula = 5;
constexpr unsigned net_shade = 0xCECECE; // RGB(206,206,206)

} // namespace

FirmSchedule::FirmSchedule(frmImmovable& form, session::Session& session)
    : AssetSchedule(form, session), Frame(form, "Frame"),
      sprAssetInterest(form, "sprAssetInterest", static_cast<int>(fields.size()), rows_at_first,
                       "Interest in Firm or AOP"),
      txtTotalInterestInFirm(form, "txtTotalInterestInFirm", "Total Net Amount") {
    txtTotalInterestInFirm.set_locked(true);
    sprAssetInterest.tag = "Interest in Firm or AOP";
    design_columns(sprAssetInterest, fields);
    sprAssetInterest.set_column_backcolor(FirmColumn::net, net_shade);
    sprAssetInterest.set_column_formula(FirmColumn::net, {FirmColumn::value, FirmColumn::debt},
                                        widgets::difference_formula, rows_with_formula);
    total_ = &form_.rules.add({.target = txtTotalInterestInFirm,
                               .sources = {column_of(sprAssetInterest, FirmColumn::net)},
                               .how = widgets::running_sum,
                               .otherwise = "waits for the next change of an amount"});
    form_.rules.tell({sprAssetInterest, {FirmColumn::net, 1, FirmColumn::net, widgets::last_of_grid}},
                     "as it was stored; only the first five rows work out a net amount");
    form_.rules.call(sprAssetInterest, "Value of the Assessee's Interest", FirmColumn::value);
    connect();
}

void FirmSchedule::connect() {
    sprAssetInterest.on_change = [this](int column, int row) { sprAssetInterest_Change(column, row); };
    sprAssetInterest.on_key_down = [this](std::string_view key) { return sprAssetInterest_KeyDown(key); };
    sprAssetInterest.on_key_char = [this](char32_t character) { sprAssetInterest_KeyPress(character); };
    sprAssetInterest.on_advance = [this] { sprAssetInterest.set_rows(sprAssetInterest.rows() + 1); };
}

void FirmSchedule::sprAssetInterest_Change(int column, int) {
    if (column != FirmColumn::value && column != FirmColumn::debt && column != FirmColumn::net) return;
    txtTotalInterestInFirm.set_text("0");
    total_->work_out();
}

bool FirmSchedule::sprAssetInterest_KeyDown(std::string_view key) {
    if ((key == "Tab" || key == "Right") && sprAssetInterest.active_row() == sprAssetInterest.rows() - 1)
        sprAssetInterest.set_rows(sprAssetInterest.rows() + 1);
    return false; // the key moves on as usual
}

void FirmSchedule::sprAssetInterest_KeyPress(char32_t character) {
    // Wanted: the point of a ratio asks too. The hyphen inserts a row only where no row is active,
    // which never is so here.
    if ((character != U'\x1b' && character != U'.') || sprAssetInterest.data_rows() == 0) return;
    const widgets::MessageBox question{.text = "Do you want to delete the selected row(s) ?",
                                       .icon = widgets::Icon::question,
                                       .buttons = {widgets::Answer::yes, widgets::Answer::no}};
    if (!says_yes(session_.desk, question)) return;
    // Wanted: the total waits for the next change.
    sprAssetInterest.delete_rows(sprAssetInterest.active_row(), rows_to_delete());
}

int FirmSchedule::rows_to_delete() const {
    // Wanted: one row, and one more for each pair of equal names from the active row on, empty names
    // included, wherever the pair stands.
    int count = 1;
    std::unordered_map<std::string, int> seen;
    const int last = sprAssetInterest.data_rows();
    for (int row = sprAssetInterest.active_row(); row <= last; ++row)
        count += seen[sprAssetInterest.text(FirmColumn::name, row)]++;
    return count;
}

void FirmSchedule::load(const Attempt& attempt) {
    sprAssetInterest.clear_data();
    RowSet records = open_rows(session_, attempt, "[InterestInFirmOrAOP] where " + asset_key(session_));
    fill_rows(sprAssetInterest, fields, records, RowGrowth::as_needed);
    // Wanted: the names' column, which no total follows: the total stays empty after a load.
    sprAssetInterest_Change(FirmColumn::partners, -1);
}

void FirmSchedule::save(const Attempt& attempt) {
    RowSet records = open_emptied(session_, attempt, "[InterestInFirmOrAOP] Where " + asset_key(session_));
    // Wanted: no row is left out; a firm's name alone is stored with amounts of 0.
    store_rows(attempt, session_, records, sprAssetInterest, fields,
               {.last_row = sprAssetInterest.data_rows(), .kept = {}, .asset_type = session_.asset_type()});
}

std::string FirmSchedule::value_for_parent() const {
    return txtTotalInterestInFirm.text();
}

} // namespace levora::schedules
