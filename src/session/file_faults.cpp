#include "session/file_faults.h"

#include "widgets/failure.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace levora::session {

std::string reason_of(int system_error) {
    return std::generic_category().message(system_error);
}

void throw_file_fault(const std::string& path, int system_error) {
    const std::string description = path + ": " + reason_of(system_error);
    switch (system_error) {
    case ENOSPC:
    case EDQUOT:
        throw Failure(error_number::disk_full, description);
    case EACCES:
    case EPERM:
    case EROFS:
        throw Failure(error_number::permission_denied, description);
    case ENOENT:
    case ENOTDIR: {
        std::error_code ignored;
        const bool has_folder =
            std::filesystem::is_directory(std::filesystem::path(path).parent_path(), ignored);
        throw Failure(has_folder ? error_number::file_not_found : error_number::path_not_found, description);
    }
    default:
        throw Failure(error_number::path_access, description);
    }
}

} // namespace levora::session
