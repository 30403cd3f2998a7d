#pragma once

#include "document/report.h"
#include "document/report_files.h"
#include "paper/marks.h"
#include "paper/output.h"
#include "paper/pages.h"
#include "paper/report_layout.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <stdlib.h>

namespace levora::paper::testing {

using document::Report;

inline Report shipped(const std::string& name) {
    return Report(document::open_layout(LEVORA_BIN, name));
}

// Puts a text into every object: figures where amounts stand, a tick where ticks stand.
inline void fill_all(Report& report, const std::string& words, const std::string& amount) {
    const auto fill = [&](const document::Block& block) {
        for (const document::Element& element : block.elements) {
            if (element.name.empty() || element.kind == document::ElementKind::text) continue;
            std::string text = words;
            if (element.kind == document::ElementKind::tick) text = document::tick;
            if (element.kind == document::ElementKind::bar_code) text = "*ABCDE1234F*";
            if (element.look.align == document::Align::right) text = amount;
            report.set_text(element.name, text);
        }
    };
    for (const document::Section& section : report.layout().sections)
        for (const document::Block& block : section.blocks)
            fill(block);
}

// Rows of thirteen columns with this text in each; the total is in each row.
inline document::RowTable rows_of(int count, const std::string& text) {
    document::RowTable table;
    for (int column = 1; column <= 13; ++column)
        table.columns.push_back("Col" + std::to_string(column));
    for (int row = 1; row <= count; ++row)
        table.rows.emplace_back(13, session::Value(text));
    return table;
}

// What a command prints.
inline std::string output_of(const std::string& command) {
    std::string output;
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen((command + " 2>/dev/null").c_str(), "r"),
                                                     &::pclose);
    std::array<char, 4096> part{};
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe.get()))
        output.append(part.data(), count);
    return output;
}

inline QImage picture_of(const Pages& pages, int page, double dots_per_inch) {
    const double scale = dots_per_inch / 25.4;
    QImage image(qRound(pages.size().width() * scale), qRound(pages.size().height() * scale),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    pages.paint(painter, page, scale);
    return image;
}

class PaperTest : public ::testing::Test {
protected:
    PaperTest() {
        std::string name = (std::filesystem::temp_directory_path() / "levora-paper-XXXXXX").string();
        folder = ::mkdtemp(name.data());
    }
    ~PaperTest() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    std::string pdf(const Report& report) const {
        std::string path = folder + "/" + report.name() + ".pdf";
        save_pdf(Pages(report), path);
        return path;
    }

    std::string folder;
};

} // namespace levora::paper::testing
