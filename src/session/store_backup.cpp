#include "session/store_backup.h"

#include "session/file_faults.h"
#include "session/parts_file.h"
#include "session/store_engine.h"
#include "session/store_image.h"
#include "session/whole_folder.h"
#include "widgets/failure.h"

#include <filesystem>
#include <map>
#include <new>
#include <vector>

namespace levora::session {

namespace {

void check_image(const std::string& name, const std::string& image) {
    sqlite3* database = nullptr;
    const int opened = sqlite3_open(":memory:", &database);
    const std::unique_ptr<sqlite3, CloseDatabase> closing(database);
    if (opened != SQLITE_OK) throw std::bad_alloc();
    std::vector<unsigned char> bytes(image.begin(), image.end());
    std::string verdict;
    const auto size = static_cast<sqlite3_int64>(bytes.size());
    if (sqlite3_deserialize(database, "main", bytes.data(), size, size, SQLITE_DESERIALIZE_READONLY) ==
        SQLITE_OK)
        sqlite3_exec(
            database, "PRAGMA integrity_check(1)",
            [](void* text, int, char** values, char**) {
                *static_cast<std::string*>(text) = values[0] ? values[0] : "";
                return 0;
            },
            &verdict, nullptr);
    if (verdict != "ok") throw Failure(error_number::path_access, "the backup of " + name + " is damaged");
}

} // namespace

void back_up_folder(const std::string& folder, const std::string& file, const WorkTold& told) {
    PartsFile backup(file, PartsFile::Kind::backup);
    {
        const WholeFolder turn(folder); // nobody writes while the copies are taken
        int done = 0;
        for (const Store each : all_stores) {
            OpenStore store(store_path(folder, each));
            if (told) told(store.file(), done++, static_cast<int>(std::size(all_stores)));
            backup.put(std::filesystem::path(store.file()).filename().string(),
                       image_of(store.database(), store.file()));
        }
        for (const auto& [name, content] : working_copies(folder))
            backup.put(name, content);
    }
    backup.finish();
}

void restore_folder(const std::string& file, const std::string& folder, const WorkTold& told) {
    const std::map<std::string, std::string> parts = PartsFile::open(file, PartsFile::Kind::backup).parts();
    StoreImages images;
    int done = 0;
    const auto tell = [&](const std::string& path) {
        if (told) told(path, done++, 2 * static_cast<int>(std::size(all_stores))); // looked at, then written
    };
    for (const Store each : all_stores) {
        const std::string path = store_path(folder, each);
        tell(path);
        const auto part = parts.find(std::filesystem::path(path).filename().string());
        if (part == parts.end())
            throw Failure(error_number::path_access, file + ": " + path + " is not in it");
        check_image(part->first, part->second);
        images.emplace(path, &part->second);
    }
    refuse_stores_at_work(images);
    make_folder(folder);
    write_stores(images, write_working_copies(folder, parts), tell);
}

} // namespace levora::session
