#include "session/kept_stores.h"

#include "session/store_engine.h"

#include <new>

namespace levora::session {

namespace {

constexpr std::size_t most_kept = 4; // the stores of one folder

bool is_same_moment(const timespec& one, const timespec& other) {
    return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
}

bool is_untouched(const struct stat& before, const struct stat& now) {
    return before.st_dev == now.st_dev && before.st_ino == now.st_ino && before.st_size == now.st_size &&
           is_same_moment(before.st_ctim, now.st_ctim);
}

} // namespace

KeptStores::KeptStores() : shelf_(std::make_shared<Shelf>()) {}
KeptStores::~KeptStores() = default;

std::shared_ptr<OpenStore> KeptStores::open(const std::string& file) {
    std::unique_ptr<OpenStore> store = take_unchanged(*shelf_, file);
    if (!store) store = std::make_unique<OpenStore>(file);
    return {store.release(), [shelf = std::weak_ptr<Shelf>(shelf_)](OpenStore* let_go) {
                std::unique_ptr<OpenStore> owned(let_go);
                if (const auto still_there = shelf.lock()) put_away(*still_there, std::move(owned));
            }};
}

std::unique_ptr<OpenStore> KeptStores::take_unchanged(Shelf& shelf, const std::string& file) {
    const auto found = shelf.find(file);
    if (found == shelf.end()) return nullptr;
    Kept kept = std::move(found->second);
    shelf.erase(found);
    struct stat now {};
    if (::stat(file.c_str(), &now) != 0 || !is_untouched(kept.as_left, now)) return nullptr;
    return std::move(kept.store);
}

void KeptStores::put_away(Shelf& shelf, std::unique_ptr<OpenStore> store) noexcept try {
    if (!store->is_at_rest()) return;
    struct stat as_left {};
    // The order matters: a file that is replaced after the first look has moved in the second.
    if (::stat(store->file().c_str(), &as_left) != 0 || store->file_has_moved()) return;
    store->rest();
    if (shelf.size() >= most_kept && !shelf.contains(store->file())) shelf.clear();
    const std::string file = store->file();
    shelf.insert_or_assign(file, Kept{std::move(store), as_left});
} catch (const std::bad_alloc&) {
    // There is no memory to keep it: it is closed.
}

} // namespace levora::session
