#pragma once

#include <QUiLoader>

#include <string>

namespace levora::desktop {

// Loads the layout file of a screen, with the widgets of our own that it names.
class FormLoader final : public QUiLoader {
    Q_OBJECT

public:
    // The root widget of ":/forms/<screen>.ui"; null when the screen has no layout.
    QWidget* load_screen(const std::string& screen, QWidget* parent);

    QWidget* createWidget(const QString& class_name, QWidget* told_parent, const QString& name) override;
};

} // namespace levora::desktop
