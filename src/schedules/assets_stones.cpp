#include "schedules/assets_stones.h"

#include "schedules/assets_jewellery.h"
#include "schedules/schedule_field.h"
#include "session/unread_rows.h"
#include "widgets/form.h"

#include <array>

namespace levora::schedules {

using session::RowSet;
using session::RowSetUse;
using widgets::CellDesign;

namespace {

CellDesign description() {
    return widgets::text_cell(600);
}
CellDesign weight() {
    CellDesign design = widgets::text_cell(60);
    design.figure = true;
    return design;
}
CellDesign value() {
    return widgets::number_cell(-9999999999999, 9999999999999, 0, true);
}

// clang-format off
constexpr std::array<ScheduleField, 3> fields{{
    {"Description of precious or semi-precious stones", description, Ground::plain, FieldStore::text, "Description", 48},
    {"Weight of precious or semi-precious stones",      weight,      Ground::plain, FieldStore::amount, "Weight", 20},
    {"Value of precious or semi-precious stone",        value,       Ground::plain, FieldStore::amount, "ValueOfStones", 20},
}};
// clang-format on

constexpr int rows_at_first = 10;

} // namespace

StonesPanel::StonesPanel(widgets::Form& form, session::Session& session, JewellerySchedule& jewellery)
    : frPreciousStone(form, "frPreciousStone", "Description of Precious and Semi-precious Stones"),
      lblJR(form, "lblJR", ""),
      sprPreciousStone(form, "sprPreciousStone", static_cast<int>(fields.size()), rows_at_first,
                       "Description of Precious and Semi-precious Stones"),
      txtTotal(form, "txtTotal", "Total"), btnOK(form, "btnOK", "OK"), session_(session),
      jewellery_(jewellery) {
    frPreciousStone.set_visible(false);
    txtTotal.set_locked(true);
    sprPreciousStone.tag = "Description of Precious and Semi-precious Stones";
    design_columns(sprPreciousStone, fields);
    total_ =
        &form.rules.add({txtTotal, {column_of(sprPreciousStone, StoneColumn::value)}, widgets::running_sum});
    connect();
}

void StonesPanel::connect() {
    sprPreciousStone.on_change = [this](int, int) { sprPreciousStone_Change(); };
    sprPreciousStone.on_advance = [this] {
        sprPreciousStone.set_rows(sprPreciousStone.rows() + 1);
        sprPreciousStone.set_active(1, sprPreciousStone.rows());
    };
    btnOK.on_click = [this] { btnOK_Click(); };
}

std::string StonesPanel::item_key() const {
    return "AssesseeNo = " + session_.assessee_text() + " And FY ='" + session_.CurrentFY +
           "' And JwelleryDetailNo = " + lblJR.caption();
}

void StonesPanel::open(int column) {
    frPreciousStone.set_visible(true);
    frPreciousStone.bring_to_front();
    lblJR.set_caption(std::to_string(column - 1));
    LoadPreciousStones();
}

void StonesPanel::LoadPreciousStones() {
    read_ = false;
    sprPreciousStone.clear_data();
    session_.SqlText = "Select * From [PreciousStones] where " + item_key() + " Order By StoneSrNo";
    RowSet records = session_.TaxDb.open_rows(session_.SqlText);
    fill_rows(sprPreciousStone, fields, records, RowGrowth::as_needed);
    read_ = true;
    sprPreciousStone_Change();
}

void StonesPanel::SavePreciousStones() {
    // Wanted: a grid that was emptied deletes nothing, and the old stones are back at the next load.
    const int last = sprPreciousStone.data_rows();
    if (last == 0) return;
    session_.SqlText = "Delete From [PreciousStones] where " + item_key();
    session_.TaxDb.execute(session_.SqlText);
    session_.SqlText = "Select * From [PreciousStones] where " + item_key();
    RowSet records = session_.TaxDb.open_rows(session_.SqlText, RowSetUse::update);
    for (int row = 1; row <= last; ++row) {
        if (sprPreciousStone.text(StoneColumn::description, row).empty()) continue;
        records.add_new();
        records.set("AssesseeNo", session_.AssesseeNo);
        records.set("FY", session_.CurrentFY);
        records.set("JwelleryDetailNo", val(lblJR.caption()));
        store_fields(records, sprPreciousStone, row, fields);
        records.update();
    }
}

void StonesPanel::sprPreciousStone_Change() {
    total_->work_out();
}

void StonesPanel::btnOK_Click() {
    if (!read_ && sprPreciousStone.data_rows() > 0) {
        if (!saves_over_unread(session_, "frmImmovable - btnOK_Click", {{"PreciousStones", item_key()}},
                               [this] { frPreciousStone.set_visible(false); }))
            return;
    }
    SavePreciousStones();
    frPreciousStone.set_visible(false);
    // Wanted: for information only, so it enters no total; a total of 0 leaves the value as it was.
    widgets::Grid& items = jewellery_.sprJewellary;
    if (txtTotal.value() > 0)
        items.set_text(items.active_column(), JewelleryRow::stones_value, txtTotal.text());
    else
        items.set_text(items.active_column(), JewelleryRow::stones, stones_caption);
}

} // namespace levora::schedules
