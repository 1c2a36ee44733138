// Questions and messages to the person, without knowing how they are shown: the program shows
// message boxes, a test answers by itself.

#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace tomely {

/// The message text of every alert is "Tomely"; this is the rest of it.
struct Alert {
    QString informativeText;
    QStringList buttons; // at least one; as shown, already translated
    int defaultButton = 0; // the one that has the focus, so that Return means it
    int escapeButton = 0; // what Escape and closing the alert mean
};

class Alerts {
public:
    virtual ~Alerts() = default;

    /// Blocks until it is answered and gives the index of the button.
    virtual int runModal(const Alert& alert) = 0;

    /// Shows the alert as a sheet on `window` (the window concerned; nullptr for none) and returns
    /// at once; `answered` gets the index of the button later. When the window is destroyed before,
    /// nobody is answered.
    virtual void beginSheet(
        QObject* window, const Alert& alert, std::function<void(int button)> answered) = 0;
};

/// A message with the one button "OK".
Alert messageAlert(const QString& informativeText);

/// A question with "Yes" (button 0) and "No" (button 1), which has the focus: only "Yes" confirms.
Alert confirmationAlert(const QString& informativeText);

} // namespace tomely
