#include "schedules/assets_screen.h"

#include "computation/hand_overs.h"
#include "schedules/asset_opening.h"
#include "schedules/hand_over.h"
#include "schedules/named_control.h"
#include "session/common_services.h"
#include "session/table_rows.h"
#include "session/unread_rows.h"

namespace levora::schedules {

using session::Attempt;
using session::procedure;
using session::RowSet;

frmImmovable::frmImmovable(session::Session& session)
    : Screen(session, "frmImmovable", "Details of Wealth Tax"),
      SSTabAsset(
          *this, "SSTabAsset",
          {"Immovable Property", "Urban Land", "Movable Property", "Interest in Firm or AOP", "Jewellery"}),
      immovable(*this, session), urban_land(*this, session), movable(*this, session), firm(*this, session),
      jewellery(*this, session), frWTDetails(*this, "frWTDetails"),
      txtNetImmovableProperty(*this, "txtNetImmovableProperty", "Immovable Property"),
      txtNetMovableProperty(*this, "txtNetMovableProperty", "Movable Property"),
      txtNetUrbanLand(*this, "txtNetUrbanLand", "Urban Land"),
      txtNetInterestInFirm(*this, "txtNetInterestInFirm", "Interest in Firm or AOP"),
      txtNetBusinessAssets(*this, "txtNetBusinessAssets", "Business Asset"),
      txtNetJewellery(*this, "txtNetJewellery", "Jewellery"),
      txtTotalNetAmount(*this, "txtTotalNetAmount", "Total Asset"), cmdOK(*this, "cmdOK", "&Ok"),
      cmdBusinessAsset(*this, "cmdBusinessAsset", "&Business Asset"),
      mnuContextMenu(*this, "mnuContextMenu", "Spread Menu"),
      mnuAddColumn(*this, "mnuAddColumn", "Add Column", mnuContextMenu),
      mnuDeleteColumn(*this, "mnuDeleteColumn", "Delete Column", mnuContextMenu),
      mnuConxtRow(*this, "mnuConxtRow", "SpreadForRows"),
      mnuInsertRow(*this, "mnuInsertRow", "Insert Row", mnuConxtRow),
      mnuDeleteRow(*this, "mnuDeleteRow", "Delete Row", mnuConxtRow),
      mnuPreview(*this, "mnuPreview", "Preview Sheet", mnuConxtRow),
      mnuPrint(*this, "mnuPrint", "Print Sheet", mnuConxtRow) {
    connect_summary();
    connect_counts();
    connect_menus();
    connect_buttons();
}

bool frmImmovable::in_main_mode() const {
    return !session_.BusinessAssetFlag && !session_.DeemedAssetFlag;
}

AssetSchedule& frmImmovable::schedule(int tab) {
    const std::array<AssetSchedule*, asset_tabs> by_tab{&immovable, &urban_land, &movable, &firm, &jewellery};
    return *by_tab.at(static_cast<std::size_t>(tab));
}

void frmImmovable::connect_summary() {
    using widgets::as_it_is;
    using widgets::Write;
    const auto total_of = [this](widgets::TextField& part, widgets::Source tab, Write write) {
        return &rules.add({.target = part, .sources = {tab}, .how = as_it_is, .write = write});
    };
    summary = {total_of(txtNetImmovableProperty, immovable.txtImmovableNetAmount, Write::text),
               total_of(txtNetMovableProperty,
                        widgets::cell(movable.sprMovableProp, MovableColumn::net, MovableRow::total),
                        Write::figure),
               total_of(txtNetUrbanLand, urban_land.txtNetAmount, Write::figure),
               total_of(txtNetInterestInFirm, firm.txtTotalInterestInFirm, Write::text),
               total_of(txtNetJewellery, jewellery.txtAggNetAmt, Write::text)};
    rules.tell(txtNetBusinessAssets, business_to_assets);
    total_ = &rules.add({txtTotalNetAmount,
                         {txtNetImmovableProperty, txtNetMovableProperty, txtNetUrbanLand,
                          txtNetInterestInFirm, txtNetBusinessAssets, txtNetJewellery},
                         widgets::sum_formula});

    immovable.txtImmovableNetAmount.on_change = [this] {
        if (in_main_mode()) summary.immovable->work_out();
    };
    urban_land.txtNetAmount.on_change = [this] {
        if (in_main_mode()) summary.urban_land->work_out();
    };
    firm.txtTotalInterestInFirm.on_change = [this] {
        if (in_main_mode()) summary.firm->work_out();
    };
    jewellery.txtAggNetAmt.on_change = [this] { summary.jewellery->work_out(); };
    for (widgets::TextField* part : {&txtNetImmovableProperty, &txtNetMovableProperty, &txtNetUrbanLand,
                                     &txtNetInterestInFirm, &txtNetBusinessAssets, &txtNetJewellery}) {
        part->set_locked(true);
        part->on_change = [this] { total_->work_out(); };
    }
    txtTotalNetAmount.set_locked(true);
}

void frmImmovable::connect_buttons() {
    cmdOK.on_click = [this] { cmdOK_Click(); };
    cmdBusinessAsset.on_click = [this] { cmdBusinessAsset_Click(); };
}

void frmImmovable::Form_Load() {
    property_count_ = 0;
    jewellery_count_ = 0;
    LoadAssetComputation();
    session::SkinButtons(*this);
    mnuContextMenu.set_visible(false);
    mnuConxtRow.set_visible(false);
}

void frmImmovable::LoadAssetComputation() {
    tables_read_ = 0;
    procedure(session_, "frmImmovable - LoadAssetComputation", [this](const Attempt& attempt) {
        const auto load = [&](auto& schedule) {
            schedule.load(attempt);
            ++tables_read_;
        };
        load(immovable);
        load(urban_land);
        load(movable);
        load(firm);
        load_asset_details(attempt);
        ++tables_read_;
        load(jewellery);
    });
}

void frmImmovable::SaveAssetComputation() {
    procedure(session_, "frmImmovable - SaveAssetComputation", [this](const Attempt& attempt) {
        immovable.save(attempt);
        urban_land.save(attempt);
        movable.save(attempt);
        firm.save(attempt);
        save_asset_details(attempt);
        jewellery.save(attempt);
    });
}

void frmImmovable::load_asset_details(const Attempt& attempt) {
    const RowSet rows = open_rows(session_, attempt, "[Asset Details] Where " + asset_key(session_));
    if (rows.eof()) return;
    txtNetUrbanLand.set_value(rows["NetUrbanLand"].number());
    txtNetMovableProperty.set_value(rows["NetMovableProperty"].number());
    txtNetInterestInFirm.set_value(rows["NetInterestInFirm"].number());
    txtNetBusinessAssets.set_value(rows["NetBusinessAssets"].number());
}

void frmImmovable::save_asset_details(const Attempt& attempt) {
    RowSet rows = open_or_add(session_, attempt, "[Asset Details] Where " + asset_key(session_));
    rows.set("ImmovablePropertyDebtOwed", 0);
    rows.set("NetImmovableProperty", txtNetImmovableProperty.value());
    rows.set("NetUrbanLand", txtNetUrbanLand.value());
    rows.set("NetMovableProperty", txtNetMovableProperty.value());
    rows.set("NetInterestInFirm", txtNetInterestInFirm.value());
    rows.set("NetBusinessAssets", txtNetBusinessAssets.value());
    rows.set("TotalNetAsset", txtTotalNetAmount.value());
    attempt([&] { rows.update(); });
}

void frmImmovable::cmdOK_Click() {
    const std::string key = asset_key(session_);
    // In the order in which they load; the first that failed has kept the rest from it.
    std::vector<session::UnreadTable> tables{
        {"Immovable Property Details", key}, {"Urban Land", key},    {"Movable Property Details", key},
        {"InterestInFirmOrAOP", key},        {"Asset Details", key}, {"jewellery", year_key(session_)}};
    tables.erase(tables.begin(), tables.begin() + tables_read_);
    if (!tables.empty()) {
        const auto leave_unsaved = [this] {
            session_.screens.show(in_main_mode() ? "frmWealthMain" : asset_parent(session_).screen);
            leave();
        };
        if (!saves_over_unread(session_, "frmImmovable - SaveAssetComputation", tables, leave_unsaved))
            return;
    }
    SaveAssetComputation();
    widgets::Screens& screens = session_.screens;
    if (in_main_mode()) {
        widgets::Form& sheet = screens.show("frmWealthMain");
        hand_over(computation::assets_to_sheet, *this, sheet);
    } else {
        const AssetParent& parent = asset_parent(session_);
        auto& grid = control_of<widgets::Grid>(screens.show(parent.screen), parent.grid);
        for (int tab = 0; tab < asset_tabs; ++tab) {
            if (SSTabAsset.tab_enabled(tab)) {
                grid.set_text(5, grid.active_row(), schedule(tab).value_for_parent());
                grid.set_cell_locked(5, grid.active_row(), false); // it waited for its value
                break;
            }
        }
    }
    leave();
}

void frmImmovable::cmdBusinessAsset_Click() {
    // Nothing is saved first: what was typed since the last OK is lost.
    session_.screens.show("frmBusinessAssets");
    leave();
}

void frmImmovable::leave() {
    leaving_ = true;
    session_.screens.unload(name());
}

} // namespace levora::schedules
