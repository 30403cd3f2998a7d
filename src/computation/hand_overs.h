#pragma once

#include "widgets/rules.h"

// What other screens give to the sheet with their OK. The giving screen hands over by these, the sheet
// tells by them where a figure comes from. Columns and rows are those of the giving grid.
namespace levora::computation {

constexpr widgets::HandOver assets_to_sheet{.from_screen = "frmImmovable",
                                            .from_control = "txtTotalNetAmount",
                                            .from_column = 0,
                                            .from_row = 0,
                                            .to_screen = "frmWealthMain",
                                            .to_control = "txtAssetsSec2ea",
                                            .words = "the total of the assets screen",
                                            .opener = "cmdAssets"};
constexpr widgets::HandOver deemed_to_sheet{.from_screen = "frmDeemedAsset",
                                            .from_control = "sprDeemedAsset",
                                            .from_column = 9,
                                            .from_row = 13,
                                            .to_screen = "frmWealthMain",
                                            .to_control = "txtDeemedAssets",
                                            .words = "the total of the deemed assets",
                                            .opener = "cmdDeemedAssets"};
constexpr widgets::HandOver exempted_to_sheet{.from_screen = "frmAssetExempt",
                                              .from_control = "txtTotalAssetExempt",
                                              .from_column = 0,
                                              .from_row = 0,
                                              .to_screen = "frmWealthMain",
                                              .to_control = "txtExemptedAssets",
                                              .words = "the total of the exempted assets, for reporting only",
                                              .opener = "cmdExemptedAsset"};

} // namespace levora::computation
