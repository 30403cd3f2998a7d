#include "desktop/resources.h"

#include <QDir>

// The macro wants a function outside every namespace.
static void load_desktop_resources() {
    Q_INIT_RESOURCE(desktop);
}

namespace levora::desktop {

void load_resources() {
    load_desktop_resources();
}

} // namespace levora::desktop
