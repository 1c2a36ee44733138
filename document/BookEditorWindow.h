// The editor of one book as the rest of the program speaks to it: the document's other windows look
// for it, bring it up to date and close it. What is in it is the editor's own business.

#pragma once

#include <QString>

namespace tomely {

/// A second face of a DocumentWindow.
class BookEditorWindow {
public:
    virtual ~BookEditorWindow() = default;

    /// The key of the book that is edited; null for a new book.
    virtual QString getBookKey() const = 0;

    /// A custom field has a new name.
    virtual void updateColumnName() = 0;

    /// Closes the editor and drops what was not saved.
    virtual void closeEditor() = 0;
};

} // namespace tomely
