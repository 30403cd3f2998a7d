#include "session/store_tables.h"

#include "session/statement_text.h"
#include "widgets/utf8.h"
#include "widgets/value_text.h"

namespace levora::session {

namespace {

constexpr auto text = ColumnKind::text;
constexpr auto number = ColumnKind::number;
constexpr auto either = ColumnKind::text_or_number;
constexpr auto whole = ColumnKind::whole;
constexpr auto date = ColumnKind::date;
constexpr auto date_or_empty = ColumnKind::date_or_empty;
constexpr auto counter = ColumnKind::counter;

// clang-format off

// --- LVWTax ---

constexpr ColumnRule net_wealth_computation[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"AssetsValue", number}, {"DeemedAssetsValue", number},
    {"TotalAssetValue", number}, {"ExemptedAssets", number}, {"AssetChargeableWTax", number},
    {"LessDebt", number}, {"NetWealth", number}, {"RoundedNetWealth", number},
    {"TaxableWealth", number}, {"TaxOnNetWealth", number}, {"Audited", number}, {"DueDate", date},
    {"ReturnDate", date}, {"Interest", number}, {"PrepainTaxInterest", number},
    {"BalanceTaxPayable", number}, {"Refund", number},
};

// A blank grid row is stored with empty columns, its date among them.
constexpr ColumnRule prepaid_taxes[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"BankBranchName", text}, {"BankBranch", text},
    {"BSRCode", text}, {"DateOfPayment", date_or_empty}, {"ChallanSrNo", text}, {"Amount", number},
};

constexpr ColumnRule enclosure[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"Description", text}, {"Figure", text},
};

constexpr ColumnRule assessee_locking[] = {
    {"ComputerName", text}, {"AssesseeNo", whole}, {"FY", text},
};

// The valuer's date of every schedule is the text of its cell.
constexpr ColumnRule immovable_property[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"AssetType", whole}, {"PropertyNo", whole},
    {"TypeOfProperty", text}, {"Flat", text}, {"Premises", text}, {"Road", text}, {"Area", text},
    {"City", text}, {"State", text}, {"Country", text}, {"pincode", text}, {"survey", text},
    {"AnnualRent", number}, {"AnnualValueByLocalAuthority", number}, {"TaxesPaid", number},
    {"PropertyConstructedOn", text}, {"CapitalisedValue", number}, {"CostOfAcquition", number},
    {"PremiumAddedRate", text}, {"PremiumAmountAdded", number}, {"UnearnIncreasePayable", number},
    {"NetValueOfProperty", number}, {"DebtOwed", number}, {"NetValue", number},
    {"NameRegValuer", text}, {"RegNoValuer", text}, {"DateofReportByValuer", text},
};

constexpr ColumnRule annual_rent[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"AssetType", whole}, {"PropertyNo", whole},
    {"RecievableRent", number}, {"TaxesBorneByTenant", number}, {"RepairByTenant", number},
    {"DepositAccepted", number}, {"AmtDepositedformonths", number},
    {"RecievedAMTforLeaseProperty", number}, {"BenefitFromTenantToOwner", number},
};

constexpr ColumnRule unbuilt_area[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"AssetType", whole}, {"PropertyNo", whole},
    {"AggregateAreaOfPlot", number}, {"BuiltUpAreaOfPlot", number}, {"CalculatedPercentage", number},
};

constexpr ColumnRule urban_land[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"AssetType", whole}, {"UrbanLandDescription", text},
    {"Flat", text}, {"Premises", text}, {"Road", text}, {"Area", text}, {"City", text},
    {"State", text}, {"Country", text}, {"pincode", text}, {"survey", text},
    {"ValueOfUrbanLand", number}, {"DebtOwed", number}, {"NetAmount", number},
    {"NameRegValuer", text}, {"RegNoValuer", text}, {"DateofReportByValuer", text},
};

constexpr ColumnRule movable_property[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"AssetType", whole}, {"SrNo", whole}, {"MovableDesc", text},
    {"MovableValue", number}, {"DebtOwed", number}, {"NetAmount", number},
};

constexpr ColumnRule jewellery[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"JwelleryNo", whole}, {"ItemDesc", text}, {"Unit", text},
    {"GrossWeight", number}, {"NetWeight", number}, {"DescAndWeiOfPreAndSemiPreStones", either},
    {"ValOfPreAndSemiPreStones", text}, {"TotalValOfJewellery", number}, {"DebtOwned", number},
    {"NetAmt", text}, {"NameRegValuer", text}, {"RegNoValuer", text}, {"DateofReportByValuer", text},
};

constexpr ColumnRule precious_stones[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"JwelleryDetailNo", whole}, {"StoneSrNo", counter},
    {"Description", text}, {"Weight", number}, {"ValueOfStones", number},
};

constexpr ColumnRule interest_in_firm[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"AssetType", whole}, {"NameAddressofFirm", text},
    {"AddressofFirm", text}, {"PANOfFirm", text}, {"NameOfPartner", text},
    {"ProfitSharingRatio", number}, {"ValueOfInterest", number}, {"DebtOwed", number},
    {"NetAmount", number},
};

constexpr ColumnRule asset_details[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"AssetType", whole}, {"ImmovablePropertyDebtOwed", number},
    {"NetImmovableProperty", number}, {"NetUrbanLand", number}, {"NetMovableProperty", number},
    {"NetInterestInFirm", number}, {"NetBusinessAssets", number}, {"TotalNetAsset", number},
};

constexpr ColumnRule deemed_asset_details[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"DeemedAssetDetails", text}, {"TypeOfAsset", text},
    {"NameofOtherPerson", text}, {"Relationship", text}, {"PANOther", text},
    {"DeemedAssetValue", number}, {"DebtOwed", number}, {"NetAmount", number},
};

constexpr ColumnRule business_asset[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"AssetType", whole}, {"AssetName", text},
    {"BalanceSheetAmount", number}, {"IndividualAssetValuaton", number}, {"ValueTobeTaken", number},
};

constexpr ColumnRule asset_under_exemption[] = {
    {"AssesseeNo", whole}, {"FY", text}, {"ExemptedAssetDesc", text}, {"ExemptedAmount", number},
    {"DebtOwed", number}, {"NetAmount", number}, {"ResonsForClaim", text},
};

constexpr ColumnRule temp_print[] = {
    {"Clause", text}, {"Col1", text}, {"Col2", text}, {"Col3", text}, {"Col4", text}, {"Col5", text},
    {"Col6", text}, {"Col7", text}, {"Col8", text}, {"Col9", text}, {"Col10", text}, {"Col11", text},
    {"Col12", text}, {"Col13", text},
};

// --- LVForms ---

constexpr ColumnRule challan[] = {
    {"ChallanID", counter}, {"AssesseeNo", whole}, {"AY", text}, {"ChallanNo", text},
    {"ChallanDate", date}, {"TaxApplicable", whole}, {"TypeOfPayment", text},
    {"InstallmentNo", number}, {"TypeOfTDS", whole}, {"IncomeTax", whole}, {"Surcharge", whole},
    {"EducationCess", whole}, {"Interest", whole}, {"Penalty", whole}, {"Other", whole},
    {"Total", whole}, {"ChqNo", text}, {"ChqDate", date}, {"DrawnOnBank", text},
    {"DateOfPayment", date}, {"BankBranchName", text}, {"BSRCode", text}, {"ChallanSrNo", text},
};

// --- Assessee ---

constexpr ColumnRule assessee_info[] = {
    {"AssesseeNo", whole}, {"Assessee_Name", text}, {"Office_Name", text}, {"Father_Name", text},
    {"PRFather_Name", text}, {"FirstName", text}, {"MiddleName", text}, {"LastName", text},
    {"Address1", text}, {"Address2", text}, {"Address3", text}, {"Address4", text}, {"City", text},
    {"District", text}, {"State", text}, {"Pin", text}, {"Phone", text}, {"STDCode", text},
    {"MobileNo", text}, {"eMail", text}, {"Sex", number}, {"Status", number},
    {"Residential_Status", number}, {"Ward", text}, {"PAN", text}, {"Date_of_Birth", date},
    {"ResAddress1", text}, {"ResAddress2", text}, {"ResAddress3", text}, {"ResAddress4", text},
    {"ResCity", text}, {"ResDistrict", text}, {"ResState", text}, {"ResPIN", text},
};

constexpr ColumnRule bank[] = {
    {"AssesseeNo", whole}, {"IFSCCode", text}, {"Account_Type", text}, {"Account_Number", text},
};

constexpr ColumnRule customised_items[] = {
    {"ItemGroup", text}, {"Item", text}, {"OtherInfo1", text}, {"SrNo", number},
};

// --- LVIT ---

constexpr ColumnRule year_table[] = {
    {"AY", text}, {"AuditRetDueDate", date},
};

constexpr TableRule tables[] = {
    {Store::tax, "NetWealthComputation", net_wealth_computation, 2},
    {Store::tax, "PrePaidTaxes", prepaid_taxes},
    {Store::tax, "Enclosure", enclosure},
    {Store::tax, "WTaxAssesseeLocking", assessee_locking},
    {Store::tax, "Immovable Property Details", immovable_property, 4},
    {Store::tax, "Annual Rent", annual_rent, 4},
    {Store::tax, "Unbuilt Area", unbuilt_area, 4},
    {Store::tax, "Urban Land", urban_land},
    {Store::tax, "Movable Property Details", movable_property, 4},
    {Store::tax, "jewellery", jewellery, 3},
    {Store::tax, "PreciousStones", precious_stones},
    {Store::tax, "InterestInFirmOrAOP", interest_in_firm},
    {Store::tax, "Asset Details", asset_details, 3},
    {Store::tax, "DeemedAssetDetails", deemed_asset_details},
    {Store::tax, "BusinessAsset", business_asset},
    {Store::tax, "AssetUnderExemption", asset_under_exemption},
    {Store::tax, "TempPrint", temp_print},
    {Store::forms, "Challan", challan},
    {Store::assessee, "AssesseeInfo", assessee_info, 1, true},
    {Store::assessee, "Bank", bank},
    {Store::assessee, "AICustomisedItems", customised_items},
    {Store::income_tax, "AYRetDate", year_table, 1, true},
};

// clang-format on

// Texts are compared without regard to case, as the suite's own store engine does.
std::string column_statement(const ColumnRule& column) {
    const std::string name = as_name(column.name);
    const std::string complaint = "CONSTRAINT " + as_name("column " + std::string(column.name) + [&] {
                                      switch (column.kind) {
                                      case ColumnKind::text:
                                          return " takes a text";
                                      case ColumnKind::text_or_number:
                                          return " takes a text or a number";
                                      case ColumnKind::number:
                                          return " takes a number";
                                      case ColumnKind::whole:
                                      case ColumnKind::counter:
                                          return " takes a whole number";
                                      case ColumnKind::date:
                                      case ColumnKind::date_or_empty:
                                          break;
                                      }
                                      return " takes a date";
                                  }());
    switch (column.kind) {
    case ColumnKind::text:
        return name + " TEXT COLLATE NOCASE " + complaint + " CHECK (typeof(" + name +
               ") IN ('text', 'null'))";
    case ColumnKind::text_or_number:
        return name + " " + complaint + " CHECK (typeof(" + name + ") <> 'blob')";
    case ColumnKind::number:
        // Told by what it refuses: three kinds in a list would cost a table of their own for each value.
        return name + " NUMERIC " + complaint + " CHECK (typeof(" + name + ") NOT IN ('text', 'blob'))";
    case ColumnKind::whole:
        return name + " INTEGER " + complaint + " CHECK (typeof(" + name + ") IN ('integer', 'null'))";
    case ColumnKind::date:
    case ColumnKind::date_or_empty:
        // Adding no days moves a day that the calendar does not have to a later one.
        return name + " DATE " + complaint + " CHECK (" + name + " IS date(" + name + ", '+0 days'))";
    case ColumnKind::counter:
        break;
    }
    return name + " INTEGER PRIMARY KEY AUTOINCREMENT";
}

} // namespace

std::span<const TableRule> store_tables() {
    return tables;
}

const TableRule* find_table(Store store, std::string_view name) {
    for (const TableRule& each : tables)
        if (each.store == store && equal_without_case(each.name, name)) return &each;
    return nullptr;
}

const ColumnRule* find_column(const TableRule& table, std::string_view name) {
    for (const ColumnRule& each : table.columns)
        if (equal_without_case(each.name, name)) return &each;
    return nullptr;
}

std::string_view in_words(ColumnKind kind) {
    switch (kind) {
    case ColumnKind::text:
        return "text";
    case ColumnKind::text_or_number:
        return "text or number";
    case ColumnKind::number:
        return "number";
    case ColumnKind::whole:
    case ColumnKind::counter:
        return "whole number";
    case ColumnKind::date:
    case ColumnKind::date_or_empty:
        break;
    }
    return "date";
}

std::string not_what_was_wanted(std::string_view wanted, const Value& value) {
    constexpr std::size_t most_shown = 40;
    const std::string whole_text = value.text();
    std::string_view rest = whole_text;
    std::string shown;
    for (std::size_t count = 0; count < most_shown && !rest.empty(); ++count) {
        const char32_t character = take_character(rest);
        const bool is_control = character < U' ' || (character >= 0x7F && character < 0xA0);
        append_character(shown, is_control ? U'?' : character);
    }
    return "not a " + std::string(wanted) + ": \"" + shown + (rest.empty() ? "\"" : "\"...");
}

std::string create_table_statement(const TableRule& table) {
    std::string columns;
    for (const ColumnRule& each : table.columns)
        columns += (columns.empty() ? "\n    " : ",\n    ") + column_statement(each);
    if (table.enforced_key) columns += ",\n    PRIMARY KEY (" + as_name(table.columns.front().name) + ")";
    return "CREATE TABLE " + as_name(table.name) + " (" + columns + "\n)";
}

std::string create_index_statement(const TableRule& table) {
    if (table.enforced_key || !find_column(table, "AssesseeNo")) return {};
    const bool by_year = find_column(table, "FY") != nullptr;
    return "CREATE INDEX " + as_name("key of " + std::string(table.name)) + " ON " + as_name(table.name) +
           (by_year ? " (AssesseeNo, FY)" : " (AssesseeNo)");
}

} // namespace levora::session
