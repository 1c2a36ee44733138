// What the program says about itself: its guide, its versions for a report of a problem, and the
// box "About".

#pragma once

#include <QString>

class QWidget;

namespace tomely {

/// The first page of the guide, of this installation or of this build; empty when there is none.
QString guidePath();

/// Opens the guide where the desktop shows pages. Says so on `window` when that cannot be done.
void openGuide(QWidget* window);

/// What somebody who looks for a problem has to know of this program and this desktop, as lines of
/// "name: value". Nothing of the person or of collections is among it.
QString versionsText();

/// Puts versionsText() on the clipboard and says so on `window`.
void reportProblem(QWidget* window);

/// Says what the program is, on `window`.
void showAbout(QWidget* window);

/// Opens the guide at F1 in a window that has no menu for it. The window takes the key's action.
void addHelpKey(QWidget& window);

} // namespace tomely
