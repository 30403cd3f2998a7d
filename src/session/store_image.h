#pragma once

#include "session/store_engine.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace levora::session {

// The bytes of a store's file, as a copy of it would have them at this moment.
std::string image_of(sqlite3* database, const std::string& file);
// The same of a store with all its tables and no row: always the same bytes.
std::string image_of_empty(Store store);

// The stores of a folder by their paths, all to be written into it.
using StoreImages = std::map<std::string, const std::string*>;
// A run that was killed has left some of them, with just these bytes: those are no hindrance to the next.
// All of them, or another one, are a folder at work: a Failure 75.
void refuse_stores_at_work(const StoreImages& images);
// Writes those that are not there, or, with a Failure, none and without the files in `made`.
void write_stores(const StoreImages& images, std::vector<std::string> made,
                  const std::function<void(const std::string& path)>& told = {});

} // namespace levora::session
