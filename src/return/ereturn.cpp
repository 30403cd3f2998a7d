#include "return/ereturn.h"

#include "return/windows_1252.h"
#include "session/file_faults.h"
#include "session/whole_files.h"
#include "widgets/failure.h"
#include "widgets/value_text.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <unistd.h>

namespace levora::form_ba {

namespace {

constexpr int columns_per_level = 2;

} // namespace

std::string working_copy_path(const session::Session& session) {
    return session.DataFolder + "ITR/WT " + number_text(session.AssesseeNo) + " " + session.CurrentFY;
}

void write_whole_file(const std::string& path, std::string_view bytes) {
    if (path.empty()) throw Failure(error_number::bad_file_name, "Bad file name or number");
    // A link is followed, and a file that its owner has locked against writing stays.
    std::error_code not_there;
    const std::filesystem::path target = std::filesystem::canonical(path, not_there);
    const std::string place = not_there ? path : target.string();
    if (!not_there && std::filesystem::is_directory(target)) session::throw_file_fault(path, EISDIR);
    if (!not_there && ::access(place.c_str(), W_OK) != 0) session::throw_file_fault(path, errno);
    if (!not_there && !std::filesystem::is_regular_file(target))
        session::write_in_place(place, bytes);
    else
        session::replace_whole_file(place, bytes, session::shared_file_mode);
}

void eReturn::write_line(std::string_view line) {
    text_ += line;
    text_ += '\n';
}

void eReturn::indented(std::string_view line) {
    if (session_.XmlIndent < 0)
        throw Failure(
            error_number::invalid_call,
            "Invalid procedure call or argument: more elements end than have begun. Rows of Schedule "
            "OPR without a Property Head do that; choose one in each row, or empty the row.");
    text_.append(static_cast<std::size_t>(session_.XmlIndent), ' ');
    write_line(line);
}

void eReturn::OpenTag(std::string_view tag) {
    indented("<" + std::string(tag) + ">");
    session_.XmlIndent = to_integer(session_.XmlIndent + columns_per_level);
    PushTag(tag);
}

void eReturn::CloseTag() {
    session_.XmlIndent = to_integer(session_.XmlIndent - columns_per_level);
    indented("</" + PopTag() + ">");
}

void eReturn::WriteElement(std::string_view tag, std::string_view value) {
    const std::string name(tag);
    if (value.empty()) {
        indented("<" + name + "/>");
        return;
    }
    // Wanted: "<" and the rest pass as they are; readers of the file know "And" only.
    std::string escaped;
    escaped.reserve(value.size());
    for (const char each : value) {
        if (each == '&')
            escaped += "And";
        else
            escaped += each;
    }
    indented("<" + name + ">" + escaped + "</" + name + ">");
}

void eReturn::PushTag(std::string_view tag) {
    ++session_.XmlTagTop;
    session_.XmlTagStack.resize(static_cast<std::size_t>(session_.XmlTagTop) + 1);
    session_.XmlTagStack.back() = tag;
}

std::string eReturn::PopTag() {
    if (session_.XmlTagTop < 0 || static_cast<std::size_t>(session_.XmlTagTop) >= session_.XmlTagStack.size())
        throw Failure(error_number::subscript, "Subscript out of range");
    return session_.XmlTagStack[static_cast<std::size_t>(session_.XmlTagTop--)];
}

eReturn::~eReturn() {
    if (saved_) return;
    session_.XmlIndent = indent_before_;
    session_.XmlTagTop = top_before_;
}

void eReturn::save(const std::string& path) {
    write_whole_file(path, to_windows_1252(text_));
    saved_ = true;
}

} // namespace levora::form_ba
