#include "desktop/look.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdlib>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // Windows without a display, and no place of a person's own touched.
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const QTemporaryDir own;
    for (const char* place : {"XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        setenv(place, own.path().toUtf8().constData(), 1);
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Levora"));
    QApplication::setApplicationName(QStringLiteral("levora-desktop-tests"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, own.path());
    levora::desktop::apply_look(application, levora::desktop::Shade::light);
    return RUN_ALL_TESTS();
}
