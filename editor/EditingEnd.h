// Tells when a person has finished with a text field: by Return, or by going on to another control.
// A look at another window or into a menu is no end, since they come back. After a click the end is
// told when the hand is at rest: what the click on a button does comes first, and an open list is
// left alone.

#pragma once

#include <QObject>

class QLineEdit;

namespace tomely {

class EditingEnd : public QObject {
    Q_OBJECT

public:
    /// Watches a field, which owns this.
    explicit EditingEnd(QLineEdit& field);

Q_SIGNALS:
    /// Comes from the event loop, whether or not the text has changed.
    void editingEnded();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Way { Return, FocusOut };

    void end(Way way);
    void tellLater();
    void tell();

    QLineEdit& m_field;
    bool m_isPending = false; // ended, but not told yet
    Way m_way = Way::Return; // how it ended last
};

} // namespace tomely
