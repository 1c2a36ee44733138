// Sheets are window-modal dialogs that belong to a window: questions, panels and small forms.

#pragma once

class QWidget;

namespace tomely {

/// True while a sheet is open on the window: what the person has begun there comes first.
bool hasOpenSheet(const QWidget& window);

} // namespace tomely
