#pragma once

#include "session/store_engine.h"

#include <map>
#include <string>
#include <vector>

#include <sys/types.h>

namespace levora::session {

// A file that takes data out of a folder, and back into one: a store of its own with the named parts
// that were put in, marked as ours.
class PartsFile {
public:
    enum class Kind { backup, client };

    // Makes the file under another name beside `path` until it is finished.
    PartsFile(std::string path, Kind kind);
    // Opens a finished file for reading; a Failure 75 when it is not of this kind.
    static PartsFile open(const std::string& path, Kind kind);
    ~PartsFile();
    PartsFile(PartsFile&&) noexcept = default;
    PartsFile& operator=(PartsFile&&) = delete;

    [[nodiscard]] OpenStore& store() { return *store_; }
    void put(const std::string& name, const std::string& content);
    [[nodiscard]] std::map<std::string, std::string> parts();
    // Gives the file its name; it is whole and on the disk then.
    void finish();

private:
    PartsFile() = default;
    [[nodiscard]] bool stands_beside() const; // and is the file made here, not another program's

    std::string path_;
    std::string beside_; // empty when opened for reading
    std::string beside_journal_;
    ino_t file_number_ = 0;
    std::unique_ptr<OpenStore> store_;
};

// The working copies of a folder, as parts "ITR/WT 17 2014-2015": all of them, or an assessee's.
std::map<std::string, std::string> working_copies(const std::string& folder,
                                                  const std::string& start = "WT ");
// Writes them into a folder where none of these names has another content: all or, with a Failure, none.
// The files that it made; the others stood there since an earlier run was broken off.
std::vector<std::string> write_working_copies(const std::string& folder,
                                              const std::map<std::string, std::string>& parts);
void remove_files(const std::vector<std::string>& files);

} // namespace levora::session
