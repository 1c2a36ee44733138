// What stands in the list's place while it has no rows: one friendly line that says why and, where
// something can be done about it, a button that does it. It knows neither books nor filter.

#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace tomely {

/// Why a list is empty.
enum class EmptyReason {
    NoBooks, // in the whole collection
    EmptyGroup,
    NothingFound, // the filter hides all there are
};

struct EmptyListCase {
    qsizetype booksInCollection = 0;
    bool isFiltering = false;
};

/// What to tell of a list without rows.
EmptyReason emptyReason(const EmptyListCase& list);

class EmptyList : public QWidget {
    Q_OBJECT

public:
    explicit EmptyList(QWidget* parent = nullptr);

    void showReason(EmptyReason reason);

Q_SIGNALS:
    void addBook();
    void clearFilter();

private:
    QLabel* m_idEmptyText = nullptr;
    QPushButton* m_idAddFirstBook = nullptr;
    QPushButton* m_idClearFilter = nullptr;
};

} // namespace tomely
