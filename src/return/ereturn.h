#pragma once

#include "session/session_state.h"

#include <cstdint>
#include <string>
#include <string_view>

// Writing of the e-Return document: the working copy of the return and the file that is filed. The
// document is one element or tag a line, its indentation two columns a level.
namespace levora::form_ba {

// The return's working copy: "WT <assessee> <year>" in the folder "ITR" of the data folder.
std::string working_copy_path(const session::Session& session);

// The document in writing, and the one stack of open elements of a run. The stack's state belongs to
// the session (XmlIndent, XmlTagStack, XmlTagTop) and is never reset: a second document starts where
// the first one left it.
class eReturn {
public:
    explicit eReturn(session::Session& session)
        : session_(session), indent_before_(session.XmlIndent), top_before_(session.XmlTagTop) {}
    // A document that reached no file, whole or broken off, has taken no tag: the next starts where it did.
    ~eReturn();
    eReturn(const eReturn&) = delete;
    eReturn& operator=(const eReturn&) = delete;

    // Writes the start tag, moves the indentation on by 2 and pushes the tag.
    void OpenTag(std::string_view tag);
    // Moves the indentation back by 2, pops a tag and writes its end tag.
    void CloseTag();
    // Writes an element; an empty value as an empty element. "&" becomes "And", which is all the
    // escaping there is: a value with "<" makes a document that is not well formed.
    void WriteElement(std::string_view tag, std::string_view value);
    // A line outside the elements, without indentation.
    void write_line(std::string_view line);

    // The document so far, UTF-8.
    [[nodiscard]] const std::string& text() const { return text_; }
    // Puts the document into a file in Windows-1252; "?" stands for what that lacks. The file is
    // written beside its place and renamed into it, so a failure (52, 61, 70, 75, 76) leaves an old
    // file as it was.
    void save(const std::string& path);

private:
    void PushTag(std::string_view tag);
    std::string PopTag();
    void indented(std::string_view line);

    session::Session& session_;
    std::int16_t indent_before_;
    std::int32_t top_before_;
    bool saved_ = false;
    std::string text_;
};

// Puts bytes into a file, whole or not at all; readable by owner and group only. A device or a pipe is
// written as it stands: no file takes its place.
void write_whole_file(const std::string& path, std::string_view bytes);

} // namespace levora::form_ba
