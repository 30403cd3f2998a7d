#pragma once

#include <string>
#include <string_view>

#include <sys/types.h>

namespace levora::session {

// A file's whole content; throws what the machine says of it.
std::string read_whole_file(const std::string& path);
// The whole content stands beside the old file, on the disk, before it takes its place: a kill or a
// power cut leaves the old file or the new one. Throws what the machine says.
void replace_whole_file(const std::string& path, std::string_view content, mode_t mode);
// Into a device or a pipe, which stays what it is.
void write_in_place(const std::string& path, std::string_view content);
// The whole content as a new file, but never over a file that is there (75).
void write_new_file(const std::string& path, std::string_view content, mode_t mode);
// The same, unless a file of just this content is there: what a run that was killed has left. True when
// it was written.
bool write_missing_file(const std::string& path, std::string_view content, mode_t mode);

// The folder's own entry of a file reaches the disk.
void sync_folder_of(const std::string& path);

} // namespace levora::session
