// Shift+F10 opens the context menu, as it does on every desktop: the toolkit itself knows only the
// key Menu, which many keyboards do not have.

#pragma once

#include <QObject>

namespace tomely {

/// Installed on the application, it gives the key to whatever has the focus.
class ContextMenuKey : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace tomely
