#pragma once

#include <QElapsedTimer>
#include <QString>

#include <memory>

class QProgressDialog;
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

    // So many of all pieces are done; false when the person has cancelled.
    bool go_on(int done);
    // From here on it can't be cancelled any more.
    void settle();

private:
    QWidget* over_;
    QString what_;
    int of_;
    QElapsedTimer since_;
    qint64 shown_at_ = 0;
    std::unique_ptr<QProgressDialog> box_;
    bool settled_ = false;
};

} // namespace levora::desktop
