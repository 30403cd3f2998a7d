#include "schedules/asset_composition.h"

#include "schedules/asset_schedule.h"
#include "session/data_store.h"
#include "widgets/failure.h"

namespace levora::schedules {

namespace {

constexpr AssetComposition empty_composition{{{"Immovable Property"},
                                              {"Movable Property"},
                                              {"Urban Land"},
                                              {"Interest in Firm or AOP"},
                                              {"Business Asset"},
                                              {"Jewellery"}}};

} // namespace

AssetComposition asset_composition(session::Session& session) {
    AssetComposition parts = empty_composition;
    try {
        const session::RowSet row = session.TaxDb.open_rows("Select * From [Asset Details] Where " +
                                                            year_key(session) + " And AssetType = 0");
        if (row.eof()) return parts;
        double rest = row["TotalNetAsset"].number();
        std::size_t at = 0;
        for (const char* column : {"NetImmovableProperty", "NetMovableProperty", "NetUrbanLand",
                                   "NetInterestInFirm", "NetBusinessAssets"}) {
            parts.at(at).amount = row[column].number();
            rest -= parts.at(at++).amount;
        }
        parts.at(at).amount = rest; // the jewellery has no column of its own
    } catch (const Failure&) {
        return empty_composition;
    }
    return parts;
}

} // namespace levora::schedules
