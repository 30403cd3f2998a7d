#pragma once

#include <map>
#include <memory>
#include <string>

#include <sys/stat.h>

namespace levora::session {

class OpenStore;

// Stores that stay open between the starts of one process, as reading a store's tables anew takes
// longer than most of what one client needs. A store is taken up again only while its file is the very
// one that was put away, untouched since: same file, same size, same time of its last change, contents
// or rights. A restored, replaced, moved or written store is opened afresh, with all its checks.
class KeptStores {
public:
    KeptStores();
    ~KeptStores();
    KeptStores(const KeptStores&) = delete;
    KeptStores& operator=(const KeptStores&) = delete;

    // The open store of a file, put away when the last of its users lets it go. What is left of a
    // transaction, a statement or a broken save is never put away. Throws as opening a store does.
    std::shared_ptr<OpenStore> open(const std::string& file);

private:
    struct Kept {
        std::unique_ptr<OpenStore> store;
        struct stat as_left {};
    };
    using Shelf = std::map<std::string, Kept>;

    static std::unique_ptr<OpenStore> take_unchanged(Shelf& shelf, const std::string& file);
    static void put_away(Shelf& shelf, std::unique_ptr<OpenStore> store) noexcept;

    std::shared_ptr<Shelf> shelf_; // gone with this object: users that are left close their stores
};

} // namespace levora::session
