#include "desktop/kept_edits.h"

#include "desktop/qt_text.h"
#include "desktop/screen_window.h"
#include "session/session_state.h"
#include "widgets/value_text.h"

#include <QComboBox>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTimer>

namespace levora::desktop {

namespace {

constexpr int quiet_milliseconds = 500; // after the last act, before the file is written
constexpr int glance_milliseconds = 20;
constexpr int most_glances = 50;

// One file for each screen, assessee, year and data folder.
QString path_of(const ScreenWindow& window, const session::Session& session) {
    const QByteArray folder =
        QCryptographicHash::hash(QByteArray::fromStdString(session.DataFolder), QCryptographicHash::Sha1);
    return QStringLiteral("%1/unsaved/%2 %3 %4 %5.json")
        .arg(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation), to_qt(window.form()->name()))
        .arg(session.AssesseeNo)
        .arg(to_qt(session.CurrentFY), QString::fromLatin1(folder.toHex().left(12)));
}

QString figures(std::size_t count) {
    return count == 1 ? QObject::tr("One figure") : QObject::tr("%1 figures").arg(count);
}

void offer(ScreenWindow& window, const QString& path, const std::function<bool(const QString&)>& ask) {
    const std::vector<Edit> kept = KeptEdits::read(path);
    if (kept.empty()) return;
    const QString when =
        QLocale::c().toString(QFileInfo(path).lastModified(), QStringLiteral("dd/MM/yyyy HH:mm"));
    const bool wanted =
        ask(QObject::tr("%1 typed until %2 %3 not saved when the program ended. Bring %4 back? "
                        "Nothing is saved before you save.")
                .arg(figures(kept.size()), when, kept.size() == 1 ? QObject::tr("was") : QObject::tr("were"),
                     kept.size() == 1 ? QObject::tr("it") : QObject::tr("them")));
    QFile::remove(path);
    if (wanted && window.attached()) window.replay(kept);
}

} // namespace

bool KeptEdits::write(const QString& path, const std::vector<Edit>& edits) {
    if (edits.empty()) return !QFile::exists(path) || QFile::remove(path);
    QJsonArray rows;
    for (const Edit& edit : edits)
        rows.append(QJsonObject{{QStringLiteral("control"), to_qt(edit.control)},
                                {QStringLiteral("column"), edit.column},
                                {QStringLiteral("row"), edit.row},
                                {QStringLiteral("before"), to_qt(edit.before)},
                                {QStringLiteral("after"), to_qt(edit.after)}});
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path); // whole or not at all
    if (!file.open(QIODevice::WriteOnly)) return false;
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    file.write(QJsonDocument(rows).toJson(QJsonDocument::Compact));
    return file.commit();
}

std::vector<Edit> KeptEdits::read(const QString& path) {
    std::vector<Edit> edits;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return edits;
    const QJsonArray rows = QJsonDocument::fromJson(file.readAll()).array();
    for (const auto& value : rows) {
        const QJsonObject row = value.toObject();
        edits.push_back({from_qt(row[QStringLiteral("control")].toString()),
                         row[QStringLiteral("column")].toInt(), row[QStringLiteral("row")].toInt(),
                         from_qt(row[QStringLiteral("before")].toString()),
                         from_qt(row[QStringLiteral("after")].toString())});
    }
    return edits;
}

void keep_edits(ScreenWindow& window, const session::Session& session,
                std::function<bool(const QString& question)> ask) {
    auto* quiet = new QTimer(&window);
    quiet->setSingleShot(true);
    quiet->setInterval(quiet_milliseconds);
    QObject::connect(&window, &ScreenWindow::settled, quiet, [quiet] { quiet->start(); });
    QObject::connect(quiet, &QTimer::timeout, &window, [&window, &session] {
        if (window.attached()) KeptEdits::write(path_of(window, session), window.history().edits());
    });
    // A save that ended with an error report has them at best in part.
    auto given_up = std::make_shared<int>(session.given_up());
    const auto forget = [&window, &session, given_up] {
        if (!window.attached() || *given_up != session.given_up()) return;
        window.forget_edits();
        QFile::remove(path_of(window, session));
    };
    // A save has them in the store, another year's sheet has put them away.
    for (const char* name : {"cmdSave1", "cmdSave"})
        if (auto* button = window.findChild<QPushButton*>(QLatin1String(name))) {
            QObject::connect(button, &QPushButton::pressed, &window,
                             [&session, given_up] { *given_up = session.given_up(); });
            QObject::connect(button, &QPushButton::clicked, &window, [&window, &session, given_up, forget] {
                forget();
                window.tell(*given_up == session.given_up()
                                ? QObject::tr("Saved.")
                                : QObject::tr("Not all of it is saved: see the error reported."));
            });
        }
    if (auto* year = window.findChild<QComboBox*>(QStringLiteral("cboFY")))
        QObject::connect(year, &QComboBox::activated, &window, [&session, given_up, forget] {
            *given_up = session.given_up();
            forget();
        });
    QObject::connect(&window, &ScreenWindow::detaching, &window,
                     [&window, &session] { QFile::remove(path_of(window, session)); });
    auto* first = new QTimer(&window); // until the window stands in front, then once
    first->setInterval(glance_milliseconds);
    QObject::connect(&window, &ScreenWindow::came_up, first, [first, started = false]() mutable {
        if (!std::exchange(started, true)) first->start();
    });
    QObject::connect(first, &QTimer::timeout, &window,
                     [&window, &session, first, glances = 0, ask = std::move(ask)]() mutable {
                         if (!window.window()->isActiveWindow() && ++glances < most_glances) return;
                         first->stop();
                         if (window.attached()) offer(window, path_of(window, session), ask);
                     });
}

} // namespace levora::desktop
