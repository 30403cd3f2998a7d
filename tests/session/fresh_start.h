#pragma once

#include "data_folder.h"

#include "session/session_state.h"
#include "session/settings.h"
#include "widgets/grid.h"
#include "widgets/headless_desk.h"

#include <fstream>
#include <memory>
#include <string>
#include <string_view>

namespace levora::session::testing {

// A stand-alone installation on an empty data folder of its own, today being 15/09/2014, with a desk
// that answers from queues. Each new session is a fresh process on the same folder.
class FreshStart {
public:
    FreshStart() : settings(folder.path() + "/settings.toml") {
        desk.set_today({2014, 9, 15});
        settings.write(registry::shared, "LVDBPath", folder.path());
    }

    DataFolder folder;
    widgets::HeadlessDesk desk;
    Settings settings;
    std::string machine_name = "DESK-1";

    // No screen is defined yet; the session before it is gone.
    Session& new_session(const std::string& command_line) {
        session_.reset();
        session_ = std::make_unique<Session>(
            Surroundings{desk, settings, folder.path(), command_line, machine_name});
        return *session_;
    }
    [[nodiscard]] Session& session() const { return *session_; }

    void run(Store store, std::string_view statement) const { folder.run(store, statement); }
    // "a|b; c|d"
    [[nodiscard]] std::string rows(Store store, std::string_view select) const {
        return folder.rows(store, select);
    }
    // Texts of the boxes shown since the last call, with a bar between.
    std::string boxes() {
        std::string all;
        for (const auto& shown : desk.take_messages())
            all += (all.empty() ? "" : "|") + shown.box.text;
        return all;
    }
    // The procedures named in the error log, one a record, with a bar between.
    [[nodiscard]] std::string logged() const {
        std::ifstream file(folder.path() + "/ErrorLog.txt");
        std::string all;
        for (std::string line; std::getline(file, line);) {
            const std::size_t start = line.find('"') + 1;
            all += (all.empty() ? "" : "|") + line.substr(start, line.find('"', start) - start);
        }
        return all;
    }

private:
    std::unique_ptr<Session> session_;
};

// Texts of all cells that hold data, row by row: "a,b / c,d", an empty cell as "-".
inline std::string data_of(const widgets::Grid& grid) {
    std::string all;
    for (int row = 1; row <= grid.data_rows(); ++row) {
        all += row > 1 ? " / " : "";
        for (int column = 1; column <= grid.columns(); ++column)
            all += (column > 1 ? "," : "") + (grid.text(column, row).empty() ? "-" : grid.text(column, row));
    }
    return all;
}

} // namespace levora::session::testing
