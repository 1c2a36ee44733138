// The five image wells of an editor with their clear buttons, and which of them the person changed:
// only those are written, so that the others keep their bytes.

#pragma once

#include "model/BookEntry.h"

#include <QObject>

#include <array>

class QAbstractButton;
class QWidget;

namespace tomely {

class DraggableImageView;
class FilePanels;
class UserDefaults;

class ImageWells : public QObject {
    Q_OBJECT

public:
    /// `window` has the wells and buttons. Everything must outlive this.
    ImageWells(QWidget& window, FilePanels& panels);

    /// Wells are numbered as the pictures of a book, 1 to 5.
    DraggableImageView& well(int slot) const { return *m_rows.at(index(slot)).well; }

    /// Shows a book's pictures; none is changed then.
    void fill(const BookEntry& book);

    bool isChanged() const;

    /// Stores the pictures of the changed wells.
    void write(BookEntry& book, const UserDefaults& defaults) const;

    /// The well has another picture now.
    void imageChanged(int slot);

    /// Takes the picture out of the well.
    void imageCleared(int slot);

private:
    struct Row {
        DraggableImageView* well = nullptr;
        QAbstractButton* clearButton = nullptr;
        bool isChanged = false;
    };

    static std::size_t index(int slot) { return static_cast<std::size_t>(slot - 1); }

    void showClearButton(const Row& row);
    void pickPicture(int slot);

    QWidget& m_window;
    FilePanels& m_panels;
    std::array<Row, BookEntry::ImageCount> m_rows;
};

} // namespace tomely
