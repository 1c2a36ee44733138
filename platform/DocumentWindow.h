// A window of a document, as the document sees it: something to show, bring forward and close. What
// is in the window is the window's own business.

#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace tomely {

/// What a window holds that its document does not have yet, and closing the window would lose.
struct UnsavedWork {
    QString question; // whether to keep it, as a person is asked
    bool canBeKept = true; // as it is now
};

class DocumentWindow {
public:
    virtual ~DocumentWindow() = default;

    virtual void showWindow() = 0;

    /// Makes the window the one in front, also when it is minimised.
    virtual void bringToFront() = 0;

    /// Takes over what is still being typed in a cell of the window.
    virtual void endEditing() { }

    /// Asked before the document closes; nothing for a window that only shows its document.
    virtual std::optional<UnsavedWork> unsavedWork() const { return std::nullopt; }

    /// Puts the unsaved work into the document; false when it cannot be kept as it is.
    virtual bool keepWork() { return true; }

    /// Forgets the unsaved work.
    virtual void dropWork() { }

    /// The window object, for alerts that belong to it; nullptr for a window without one.
    virtual QObject* windowObject() = 0;
};

} // namespace tomely
