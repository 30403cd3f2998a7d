#include "return/schedule_elements.h"

#include "return/return_grids.h"

#include <array>

namespace levora::form_ba {

namespace {

using enum CellFormat;

constexpr std::array btp_cells{
    CellElement{"FBAMain:BsrCode", btp_column::bsr_code, trimmed},
    CellElement{"FBAMain:DepositDate", btp_column::deposit_date, date},
    CellElement{"FBAMain:ChallanNo", btp_column::challan_number, amount},
    CellElement{"FBAMain:DepositAmount", btp_column::amount, amount},
};

constexpr std::array immovable_cells{
    CellElement{"FBAMain:ImmovablePropType", immovable_column::asset_type, asset_type},
    CellElement{"FBAMain:ImmovablePropDesc", immovable_column::description},
    CellElement{"FBAMain:DoorNo", immovable_column::flat},
    CellElement{"FBAMain:BuildingName", immovable_column::premises},
    CellElement{"FBAMain:StreetName", immovable_column::road},
    CellElement{"FBAMain:Locality", immovable_column::area},
    CellElement{"FBAMain:City", immovable_column::town},
    CellElement{"FBAMain:ImmovState", immovable_column::state, state_code},
    CellElement{"FBAMain:ImmovCountry", immovable_column::country, india},
    CellElement{"FBAMain:ImmovPinCode", immovable_column::pin_code},
    CellElement{"FBAMain:SurveyPlotNo", immovable_column::survey},
    CellElement{"FBAMain:ImmovablePropValue", immovable_column::value, amount},
    CellElement{"FBAMain:DebtOwnedImmovableProp", immovable_column::debt, amount},
    CellElement{"FBAMain:NetAmountImmovProp", immovable_column::net, amount},
    CellElement{"FBAMain:NameOfRegValuer", immovable_column::valuer_name, text_if_any},
    CellElement{"FBAMain:RegistrationNumber", immovable_column::valuer_number, text_if_any},
    CellElement{"FBAMain:CertificationDate", immovable_column::report_date, date_if_any},
};

constexpr std::array movable_cells{
    CellElement{"FBAMain:MovablePropDescType", movable_column::description, movable_kind},
    CellElement{"FBAMain:MovablePropValue", movable_column::value, amount},
    CellElement{"FBAMain:DebtOwnedMovableProp", movable_column::debt, debt_of_movable},
    CellElement{"FBAMain:NetAmountMovProp", movable_column::net, amount},
};

constexpr std::array jewellery_cells{
    CellElement{"FBAMain:JewelleryDescription", jewellery_column::description},
    CellElement{"FBAMain:Unit", jewellery_column::unit},
    CellElement{"FBAMain:GrossWeight", jewellery_column::gross_weight},
    CellElement{"FBAMain:NetWeight", jewellery_column::net_weight},
    CellElement{"FBAMain:PreciousStoneTotalValue", jewellery_column::stones_value, amount},
    CellElement{"FBAMain:TotalValueOfJewellery", jewellery_column::value, amount},
    CellElement{"FBAMain:DebtInRelJewellery", jewellery_column::debt, amount},
    CellElement{"FBAMain:NetAmountJewellery", jewellery_column::net, amount},
    CellElement{"FBAMain:NameRegValuer", jewellery_column::valuer_name, text_unless_blank},
    CellElement{"FBAMain:RegNumberValuer", jewellery_column::valuer_number, text_unless_blank},
    CellElement{"FBAMain:DateCertificationJewelValuer", jewellery_column::report_date, date_unless_blank},
};

constexpr std::array stone_cells{
    CellElement{"FBAMain:PreciousStoneDescription", stone_column::description},
    CellElement{"FBAMain:StoneWeight", stone_column::weight},
    CellElement{"FBAMain:PreciousStoneValue", stone_column::value, amount},
};

constexpr std::array other_person_cells{
    CellElement{"FBAMain:NameOtherPerson", other_person_column::name},
    CellElement{"FBAMain:Relationship", other_person_column::relationship},
    CellElement{"FBAMain:PanOtherPerson", other_person_column::pan},
    CellElement{"FBAMain:AggregateValAssets", other_person_column::value, amount},
    CellElement{"FBAMain:DebtOwnedRelAsset", other_person_column::debt, amount},
    CellElement{"FBAMain:NetAmount", other_person_column::net, amount},
};

constexpr std::array firm_cells{
    CellElement{"FBAMain:FirmName", firm_column::name},
    CellElement{"FBAMain:FirmAddress", firm_column::address},
    CellElement{"FBAMain:PanOfFirm", firm_column::pan},
    CellElement{"FBAMain:PartnerNames", firm_column::partners},
    CellElement{"FBAMain:ProfitSharingRatio", firm_column::ratio},
    CellElement{"FBAMain:ValOfAssesseeFirmAsset", firm_column::value, amount},
    CellElement{"FBAMain:DebtOwnedFirm", firm_column::debt, amount},
    CellElement{"FBAMain:NetAmoutFirm", firm_column::net, amount},
};

constexpr std::array exempt_cells{
    CellElement{"FBAMain:ExemptAssetDesc", exempt_column::description},
    CellElement{"FBAMain:ExemptAssetValue", exempt_column::value, amount},
    CellElement{"FBAMain:DebtOwnedExempt", exempt_column::debt, amount},
    CellElement{"FBAMain:ClaimReasons", exempt_column::reason},
};

constexpr std::array opr_cells{
    CellElement{"FBAMain:ImmovablePropDesc", opr_column::description},
    CellElement{"FBAMain:DoorNo", opr_column::flat},
    CellElement{"FBAMain:BuildingName", opr_column::premises},
    CellElement{"FBAMain:StreetName", opr_column::road},
    CellElement{"FBAMain:Locality", opr_column::area},
    CellElement{"FBAMain:City", opr_column::town},
    CellElement{"FBAMain:ImmovState", opr_column::state, state_code},
    CellElement{"FBAMain:ImmovCountry", opr_column::country, india},
    CellElement{"FBAMain:ImmovPinCode", opr_column::pin_code},
    CellElement{"FBAMain:SurveyPlotNo", opr_column::survey},
    CellElement{"FBAMain:Cost", opr_column::cost},
};

constexpr std::array heads{
    PropertyHead{"AgriculturalLand", "FBAMain:ImmovablePropertyAgri", "A", "FBAMain:AgriFlag"},
    PropertyHead{"Non-AgriculturalLand", "FBAMain:ImmovablePropertyNonAgri", "N", "FBAMain:NonAgriFlag"},
    PropertyHead{"CommercialBuilding", "FBAMain:ImmovablePropertyCommercial", "C", "FBAMain:CommercialFlag"},
    PropertyHead{"ResidentialBuilding", "FBAMain:ImmovablePropertyResidencial", "R",
                 "FBAMain:ResidencialFlag"},
};

constexpr std::array kinds{
    MovableKind{"Motor Cars", "1"},
    MovableKind{"Yachts, AirCrafts and Boats etc.", "2"},
    MovableKind{"Cash-in-Hand", "3"},
};

} // namespace

const ScheduleElements tax_payment{"FBAMain:TaxPayment", "FBAMain:TotalPrepaidTaxInterestTotal", btp_cells};
const ScheduleElements sch_immovable_property{"FBAMain:SchImmovableProperty", "FBAMain:TotalValImmovableProp",
                                              immovable_cells};
const ScheduleElements sch_movable_property{"FBAMain:SchMovableProperty", "FBAMain:TotalValMovableProp",
                                            movable_cells};
const ScheduleElements sch_jewellery{"FBAMain:SchJewellery", "FBAMain:TotalValJewellery", jewellery_cells};
const ScheduleElements sch_jewel_stones{"FBAMain:SchJewelStones", "", stone_cells};
const ScheduleElements sch_wealth_other{"FBAMain:SchWealthOther", "FBAMain:TotalValOtherPerson",
                                        other_person_cells};
const ScheduleElements sch_firm_aop{"FBAMain:SchFirmAop", "FBAMain:TotalValFirmAssets", firm_cells};
const ScheduleElements exempt_asset_detail{"FBAMain:ExemptAssetDetail", "", exempt_cells};

const std::span<const PropertyHead> property_heads{heads};
const std::span<const CellElement> property_cells{opr_cells};
const std::span<const MovableKind> movable_kinds{kinds};

} // namespace levora::form_ba
