#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>
#include <QString>

class QWidget;

namespace levora::desktop {

// Work that may take a while. After half a second a box over the window tells how far it is and lets
// the person cancel it; work that is done before shows nothing.
class LongWork final {
public:
    LongWork(QWidget* over, QString what, int of);
    ~LongWork();
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

    // So many of all pieces are done; false when the person has cancelled, or the window has gone.
    bool go_on(int done);
    // From here on it can't be cancelled any more.
    void settle();

private:
    [[nodiscard]] bool wanted() const { return settled_ || !shown_ || (box_ && !box_->wasCanceled()); }

    QPointer<QWidget> over_;
    QString what_;
    int of_;
    QElapsedTimer since_;
    qint64 shown_at_ = 0;
    QPointer<QProgressDialog> box_; // goes with its window
    bool shown_ = false;
    bool settled_ = false;
};

} // namespace levora::desktop
