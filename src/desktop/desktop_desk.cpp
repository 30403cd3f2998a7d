#include "desktop/desktop_desk.h"

#include "desktop/qt_text.h"
#include "widgets/failure.h"
#include "widgets/value_text.h"

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>

#include <array>
#include <filesystem>

namespace levora::desktop {

using widgets::Answer;
using widgets::Icon;

namespace {

QMessageBox::Icon icon_of(Icon icon) {
    switch (icon) {
    case Icon::critical:
        return QMessageBox::Critical;
    case Icon::question:
        return QMessageBox::Question;
    case Icon::exclamation:
        return QMessageBox::Warning;
    case Icon::information:
        return QMessageBox::Information;
    case Icon::none:
        break;
    }
    return QMessageBox::NoIcon;
}

// A quiet sign in the colours of the palette, sharp at every scale.
QPixmap sign_of(Icon icon, const QWidget& box) {
    constexpr int size = 36;
    const QPalette palette = QApplication::palette();
    const QColor ground = icon == Icon::critical      ? QColor(0xb3, 0x26, 0x1e)
                          : icon == Icon::exclamation ? QColor(0xb2, 0x6a, 0x00)
                                                      : palette.color(QPalette::Highlight);
    const double scale = box.devicePixelRatioF();
    QPixmap sign(qRound(size * scale), qRound(size * scale));
    sign.setDevicePixelRatio(scale);
    sign.fill(Qt::transparent);
    QPainter painter(&sign);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawEllipse(QRectF(1, 1, size - 2, size - 2));
    QFont font = QApplication::font();
    font.setPixelSize(size * 5 / 8);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    const QChar letter = QLatin1Char(icon == Icon::question ? '?' : icon == Icon::information ? 'i' : '!');
    painter.drawText(QRectF(0, 0, size, size), Qt::AlignCenter, QString(letter));
    return sign;
}

// A box that is narrower than its title would cut it.
void make_room_for_title(QMessageBox& box) {
    constexpr int least_width = 320;
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()))
        grid->addItem(new QSpacerItem(least_width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

QMessageBox::ButtonRole role_of(Answer answer) {
    switch (answer) {
    case Answer::yes:
        return QMessageBox::YesRole;
    case Answer::no:
        return QMessageBox::NoRole;
    case Answer::cancel:
    case Answer::abort:
        return QMessageBox::RejectRole;
    default:
        return QMessageBox::AcceptRole;
    }
}

// The program and its words. A blank in the program's name need not be quoted: the shortest beginning
// of the line that is a file is the program.
QStringList split_command(const QString& line) {
    for (qsizetype blank = line.indexOf(' '); blank >= 0; blank = line.indexOf(' ', blank + 1))
        if (const QString name = line.left(blank); QFileInfo(name).isFile())
            return QStringList(name) + QProcess::splitCommand(line.mid(blank + 1));
    return QProcess::splitCommand(line);
}

// "e-Return File (*.xml)|*.xml|All Files|*.*" as a file dialog here takes it.
QString name_filters(const std::string& filter) {
    const QStringList parts = to_qt(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype at = 0; at + 1 < parts.size(); at += 2) {
        QString name = parts[at];
        name.truncate(name.contains(QLatin1Char('(')) ? name.indexOf(QLatin1Char('(')) : name.size());
        QString pattern = parts[at + 1];
        pattern.replace(QLatin1Char(';'), QLatin1Char(' '));
        if (pattern == QLatin1String("*.*")) pattern = QStringLiteral("*");
        filters += QStringLiteral("%1 (%2)").arg(name.trimmed(), pattern);
    }
    return filters.join(QStringLiteral(";;"));
}

constexpr std::array calculators{"gnome-calculator", "kcalc", "galculator", "qalculate-gtk", "xcalc"};

bool is_calculator(const std::string& told) {
    const std::string name = upper_case(told);
    return name.find("CALC.EXE") != std::string::npos || name.find("LEVORA CALC") != std::string::npos;
}

} // namespace

DesktopDesk::DesktopDesk() = default;
DesktopDesk::~DesktopDesk() = default;

std::optional<Answer> DesktopDesk::show_message(const widgets::MessageBox& box) {
    // A box that the program gives no title bears the program's name.
    const QString title = box.title.empty() ? QStringLiteral("Levora Wealth Tax") : to_qt(box.title);
    QMessageBox shown(icon_of(box.icon), title, to_qt(box.text), QMessageBox::NoButton,
                      QApplication::activeWindow());
    shown.setTextFormat(Qt::PlainText);
    // The told captions, whatever the language of the machine.
    std::vector<QAbstractButton*> buttons;
    for (const Answer answer : box.buttons)
        buttons.push_back(
            shown.addButton(QStringLiteral("&") + to_qt(widgets::caption_of(answer)), role_of(answer)));
    if (!buttons.empty()) shown.setDefaultButton(qobject_cast<QPushButton*>(buttons.front()));
    // The close box and Escape press no button; a box of several buttons would refuse them otherwise.
    QPushButton hidden(&shown);
    hidden.hide();
    shown.addButton(&hidden, QMessageBox::RejectRole);
    hidden.setVisible(false);
    shown.setEscapeButton(&hidden);
    if (box.icon != Icon::none) shown.setIconPixmap(sign_of(box.icon, shown));
    make_room_for_title(shown);
    shown.exec();
    for (std::size_t at = 0; at < buttons.size(); ++at)
        if (shown.clickedButton() == buttons[at]) return box.buttons[at];
    return std::nullopt;
}

std::optional<std::string> DesktopDesk::choose_file(const widgets::FileDialog& dialog) {
    // A told folder of another platform is not there: the person's documents take its place.
    const QString told = to_qt(dialog.folder);
    QString folder =
        QFileInfo(told).isDir() ? told : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QFileInfo(folder).isDir()) folder = QDir::homePath(); // else the dialog takes it for a file's name
    QFileDialog shown(QApplication::activeWindow(), to_qt(dialog.title), folder, name_filters(dialog.filter));
    const bool saves = dialog.kind == widgets::FileDialogKind::save;
    shown.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    shown.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (!dialog.extension.empty()) shown.setDefaultSuffix(to_qt(dialog.extension));
    if (!dialog.name.empty()) shown.selectFile(to_qt(dialog.name));
    if (shown.exec() != QDialog::Accepted || shown.selectedFiles().isEmpty()) return std::nullopt;
    return from_qt(shown.selectedFiles().first());
}

bool DesktopDesk::choose_printer() {
    auto chosen = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (QPrinterInfo::availablePrinters().isEmpty()) {
        // A machine without a printer prints into a file.
        const QString path = QFileDialog::getSaveFileName(
            QApplication::activeWindow(), QObject::tr("No printer here: print into a PDF file"), QString(),
            QObject::tr("PDF files (*.pdf)"));
        if (path.isEmpty()) return false;
        chosen->setOutputFormat(QPrinter::PdfFormat);
        chosen->setOutputFileName(
            path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive) ? path : path + QStringLiteral(".pdf"));
    } else {
        QPrintDialog dialog(chosen.get(), QApplication::activeWindow());
        if (dialog.exec() != QDialog::Accepted) return false;
    }
    printer_ = std::move(chosen);
    return true;
}

Date DesktopDesk::today() const {
    const QDate today = QDate::currentDate();
    return {today.year(), today.month(), today.day()};
}

std::string program_for(const std::string& told) {
    if (is_calculator(told)) {
        for (const char* name : calculators)
            if (const QString found = QStandardPaths::findExecutable(QLatin1String(name)); !found.isEmpty())
                return from_qt(found);
        return {};
    }
    std::error_code error;
    return std::filesystem::is_regular_file(told, error) ? told : std::string();
}

void DesktopDesk::start_program(const std::string& line, widgets::ProgramWindow) {
    const std::string program = program_for(line);
    QStringList words;
    bool started = !program.empty() && QProcess::startDetached(to_qt(program), {});
    if (!started && !is_calculator(line)) {
        words = split_command(to_qt(line));
        const QString name = words.isEmpty() ? QString() : words.takeFirst();
        started = !name.isEmpty() && QProcess::startDetached(name, words);
    }
    if (started) return;
    std::string what = "File not found: " + line;
    if (is_calculator(line)) {
        what += ". None of these calculators is installed:";
        for (const char* name : calculators)
            what += std::string(" ") + name;
    }
    throw Failure(error_number::file_not_found, what);
}

void DesktopDesk::print_sheet(const widgets::Grid& grid) {
    if (on_print_sheet) on_print_sheet(grid);
}

void DesktopDesk::preview_sheet(const widgets::Grid& grid) {
    if (on_preview_sheet) on_preview_sheet(grid);
}

} // namespace levora::desktop
