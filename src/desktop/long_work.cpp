#include "desktop/long_work.h"

#include <QApplication>

#include <utility>

namespace levora::desktop {

namespace {
constexpr qint64 patience_milliseconds = 500;
constexpr qint64 between_looks_milliseconds = 50;
} // namespace

LongWork::LongWork(QWidget* over, QString what, int of) : over_(over), what_(std::move(what)), of_(of) {
    since_.start();
}

LongWork::~LongWork() {
    delete box_.data();
}

bool LongWork::go_on(int done) {
    const qint64 now = since_.elapsed();
    if (now < patience_milliseconds || now - shown_at_ < between_looks_milliseconds) return wanted();
    if (!shown_) {
        shown_ = true;
        box_ = new QProgressDialog(what_, settled_ ? QString() : QObject::tr("Cancel"), 0, of_,
                                   over_ ? over_->window() : nullptr);
        box_->setWindowTitle(QStringLiteral("Levora Wealth Tax"));
        box_->setWindowModality(Qt::ApplicationModal);
        box_->setMinimumDuration(0);
        box_->setAutoReset(false);
        box_->setAutoClose(false);
        box_->show();
    }
    shown_at_ = now;
    if (box_) box_->setValue(done);
    // Nothing but the box takes part: it stands over all windows of the program.
    QApplication::processEvents();
    return wanted();
}

void LongWork::settle() {
    settled_ = true;
    if (box_) box_->setCancelButton(nullptr);
}

} // namespace levora::desktop
