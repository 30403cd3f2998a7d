#pragma once

#include "schedules/asset_schedule.h"
#include "widgets/grid.h"

#include <string_view>

namespace levora::schedules {

// Columns of sprAssetInterest.
struct FirmColumn {
    enum : int { name = 1, address, pan, partners, ratio, value, debt, net };
};

// The tab "Interest in Firm or AOP": one firm a row.
class FirmSchedule final : public AssetSchedule {
public:
    FirmSchedule(frmImmovable& form, session::Session& session);

    widgets::Frame Frame;
    widgets::Grid sprAssetInterest;
    widgets::TextField txtTotalInterestInFirm; // its change is the frame's: it copies into the summary

    widgets::Frame& frame() override { return Frame; }
    // The total stays as it was; the summary has its figure from the stored one.
    void load(const session::Attempt& attempt) override;
    // Every row down to the last that holds data.
    void save(const session::Attempt& attempt) override;
    // Empty until a figure was changed since the load.
    [[nodiscard]] std::string value_for_parent() const override;

    void sprAssetInterest_Change(int column, int row);

private:
    void connect();
    bool sprAssetInterest_KeyDown(std::string_view key);
    void sprAssetInterest_KeyPress(char32_t character);
    // How many rows the deletion takes from the active row on.
    [[nodiscard]] int rows_to_delete() const;

    const widgets::Rule* total_ = nullptr;
};

} // namespace levora::schedules
