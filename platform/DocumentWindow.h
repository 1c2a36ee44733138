// A window of a document, as the document sees it: something to show, bring forward and close. What
// is in the window is the window's own business.

#pragma once

#include <QObject>

namespace tomely {

class DocumentWindow {
public:
    virtual ~DocumentWindow() = default;

    virtual void showWindow() = 0;

    /// Makes the window the one in front, also when it is minimised.
    virtual void bringToFront() = 0;

    /// Takes over what is still being typed in a cell of the window.
    virtual void endEditing() { }

    /// The window object, for alerts that belong to it; nullptr for a window without one.
    virtual QObject* windowObject() = 0;
};

} // namespace tomely
