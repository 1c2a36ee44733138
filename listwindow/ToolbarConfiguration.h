// Which items the toolbars of all main windows show, in which order and how, as the person chose.
// Kept in the preferences; it must not know the toolbars, which follow its signal.

#pragma once

#include <QObject>
#include <QStringList>

namespace tomely {

class UserDefaults;

enum class ToolbarDisplay { IconAndText, IconOnly, TextOnly };

class ToolbarConfiguration : public QObject {
    Q_OBJECT

public:
    /// The preferences must outlive it.
    explicit ToolbarConfiguration(UserDefaults& defaults);

    /// Identifiers of known items from left to right, none but spacers twice. The default set when
    /// nothing is stored or nothing of it is known.
    QStringList items() const;

    /// Keeps what validToolbarItems() leaves.
    void setItems(const QStringList& identifiers);

    void restoreDefaultItems();

    ToolbarDisplay display() const;
    void setDisplay(ToolbarDisplay display);

Q_SIGNALS:
    /// Items or display are not what they were.
    void changed();

private:
    UserDefaults& m_defaults;
};

} // namespace tomely
