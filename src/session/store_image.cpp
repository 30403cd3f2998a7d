#include "session/store_image.h"

#include "session/file_faults.h"
#include "session/parts_file.h"
#include "session/store_tables.h"
#include "session/whole_files.h"
#include "widgets/failure.h"

#include <new>

#include <sys/stat.h>

namespace levora::session {

namespace {

struct FreeImage {
    void operator()(unsigned char* image) const { sqlite3_free(image); }
};

void run_in_memory(sqlite3* database, const std::string& statement) {
    const int code = sqlite3_exec(database, statement.c_str(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) throw Failure(code, sqlite3_errmsg(database));
}

} // namespace

std::string image_of(sqlite3* database, const std::string& file) {
    sqlite3_int64 size = 0;
    const std::unique_ptr<unsigned char, FreeImage> image(sqlite3_serialize(database, "main", &size, 0));
    if (!image) throw Failure(SQLITE_NOMEM, file + ": too large to be held in memory");
    return {reinterpret_cast<const char*>(image.get()), static_cast<std::size_t>(size)};
}

std::string image_of_empty(Store store) {
    sqlite3* opened = nullptr;
    const int code = sqlite3_open(":memory:", &opened);
    const std::unique_ptr<sqlite3, CloseDatabase> database(opened);
    if (code != SQLITE_OK) throw std::bad_alloc();
    run_in_memory(opened, "BEGIN");
    for (const TableRule& each : store_tables()) {
        if (each.store != store) continue;
        run_in_memory(opened, create_table_statement(each));
        run_in_memory(opened, create_index_statement(each)); // empty where it needs none
    }
    run_in_memory(opened, "COMMIT");
    return image_of(opened, std::string(base_name(store)));
}

void refuse_stores_at_work(const StoreImages& images) {
    struct stat found {};
    std::size_t there = 0;
    for (const auto& [path, image] : images) {
        if (::lstat(path.c_str(), &found) != 0) continue;
        if (++there == images.size() || !S_ISREG(found.st_mode) || read_whole_file(path) != *image)
            throw Failure(error_number::path_access, path + ": there is a store already");
    }
}

void write_stores(const StoreImages& images, std::vector<std::string> made,
                  const std::function<void(const std::string& path)>& told) {
    try {
        for (const auto& [path, image] : images) {
            if (told) told(path);
            std::string file = path;
            make_room(made);
            if (write_missing_file(path, *image, shared_file_mode)) made.push_back(std::move(file));
        }
    } catch (...) {
        remove_files(made);
        throw;
    }
}

} // namespace levora::session
