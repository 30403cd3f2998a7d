#include "widgets/headless_desk.h"

#include "widgets/grid.h"

#include <algorithm>
#include <ctime>
#include <utility>

namespace levora::widgets {

namespace {

Date machine_date() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

HeadlessDesk::Sheet sheet_of(const Grid& grid, bool preview) {
    HeadlessDesk::Sheet sheet;
    sheet.grid = grid.name();
    sheet.header = grid.print_header;
    sheet.footer = grid.print_footer;
    sheet.margin_left = grid.print_margin_left;
    sheet.margin_top = grid.print_margin_top;
    sheet.preview = preview;
    for (int row = 1; row <= grid.data_rows(); ++row) {
        std::vector<std::string>& cells = sheet.cells.emplace_back();
        for (int column = 1; column <= grid.data_columns(); ++column)
            cells.push_back(grid.text(column, row));
    }
    return sheet;
}

} // namespace

HeadlessDesk::HeadlessDesk() : today_(machine_date()) {}

std::vector<HeadlessDesk::ShownMessage> HeadlessDesk::take_messages() {
    return std::exchange(messages_, {});
}
std::vector<FileDialog> HeadlessDesk::take_dialogs() {
    return std::exchange(dialogs_, {});
}
std::vector<HeadlessDesk::StartedProgram> HeadlessDesk::take_started() {
    return std::exchange(started_, {});
}
std::vector<HeadlessDesk::Sheet> HeadlessDesk::take_sheets() {
    return std::exchange(sheets_, {});
}

std::optional<Answer> HeadlessDesk::show_message(const MessageBox& box) {
    messages_.push_back({box, std::nullopt});
    if (answers_.empty()) return std::nullopt;
    const std::optional<Answer> answer = answers_.front();
    answers_.pop_front();
    if (answer && std::find(box.buttons.begin(), box.buttons.end(), *answer) == box.buttons.end())
        throw AnswerNotOffered("the box \"" + box.text + "\" does not offer the answer \"" +
                               caption_of(*answer) + "\"");
    messages_.back().answer = answer;
    return answer;
}

std::optional<std::string> HeadlessDesk::choose_file(const FileDialog& dialog) {
    dialogs_.push_back(dialog);
    if (files_.empty()) return std::nullopt;
    std::string path = std::move(files_.front());
    files_.pop_front();
    return path;
}

bool HeadlessDesk::choose_printer() {
    if (printers_ == 0) return false;
    --printers_;
    return true;
}

void HeadlessDesk::start_program(const std::string& line, ProgramWindow window) {
    started_.push_back({line, window});
}

void HeadlessDesk::print_sheet(const Grid& grid) {
    sheets_.push_back(sheet_of(grid, false));
}

void HeadlessDesk::preview_sheet(const Grid& grid) {
    sheets_.push_back(sheet_of(grid, true));
}

} // namespace levora::widgets
