#include "desktop/form_loader.h"

#include "desktop/composition_chart.h"
#include "desktop/grid_view.h"
#include "desktop/page_view.h"
#include "desktop/qt_text.h"
#include "desktop/resources.h"
#include "desktop/spin_pair.h"

#include <QFile>
#include <QScrollArea>

namespace levora::desktop {

QWidget* FormLoader::load_screen(const std::string& screen, QWidget* parent) {
    load_resources();
    QFile file(QStringLiteral(":/forms/%1.ui").arg(to_qt(screen)));
    if (!file.open(QIODevice::ReadOnly)) return nullptr;
    return load(&file, parent);
}

namespace {

// The widget that what a scroll area shows comes to stand in. What moves there only when it is whole has
// all its widgets styled anew.
QWidget* final_parent(QWidget* parent) {
    auto* area = qobject_cast<QScrollArea*>(parent);
    return area ? area->viewport() : parent;
}

} // namespace

QWidget* FormLoader::createWidget(const QString& class_name, QWidget* told_parent, const QString& name) {
    QWidget* parent = final_parent(told_parent);
    QWidget* own = nullptr;
    if (class_name == QLatin1String("GridView"))
        own = new GridView(parent);
    else if (class_name == QLatin1String("SpinPair"))
        own = new SpinPair(parent);
    else if (class_name == QLatin1String("CompositionChart"))
        own = new CompositionChart(parent);
    else if (class_name == QLatin1String("PageView"))
        own = new PageView(parent);
    if (!own) return QUiLoader::createWidget(class_name, parent, name);
    own->setObjectName(name);
    return own;
}

} // namespace levora::desktop
