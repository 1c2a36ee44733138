#include "listwindow/EmptyList.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace tomely {

EmptyReason emptyReason(const EmptyListCase& list)
{
    // A filter hides nothing of a collection without books, and clearing it would not help.
    if (list.booksInCollection == 0)
        return EmptyReason::NoBooks;
    return list.isFiltering ? EmptyReason::NothingFound : EmptyReason::EmptyGroup;
}

EmptyList::EmptyList(QWidget* parent)
    : QWidget(parent)
    , m_idEmptyText(new QLabel)
    , m_idAddFirstBook(new QPushButton(tr("&Add the First Book")))
    , m_idClearFilter(new QPushButton(tr("&Clear Filter")))
{
    m_idEmptyText->setObjectName("m_idEmptyText"_L1);
    m_idAddFirstBook->setObjectName("m_idAddFirstBook"_L1);
    m_idClearFilter->setObjectName("m_idClearFilter"_L1);
    // In the colours of the list that it stands for.
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    m_idEmptyText->setForegroundRole(QPalette::PlaceholderText);
    m_idEmptyText->setAlignment(Qt::AlignCenter);
    m_idEmptyText->setWordWrap(true);

    auto* const column = new QVBoxLayout(this);
    column->addStretch();
    column->addWidget(m_idEmptyText);
    column->addWidget(m_idAddFirstBook, 0, Qt::AlignHCenter);
    column->addWidget(m_idClearFilter, 0, Qt::AlignHCenter);
    column->addStretch();

    connect(m_idAddFirstBook, &QPushButton::clicked, this, &EmptyList::addBook);
    connect(m_idClearFilter, &QPushButton::clicked, this, &EmptyList::clearFilter);
    showReason(EmptyReason::NoBooks);
}

void EmptyList::showReason(EmptyReason reason)
{
    switch (reason) {
    case EmptyReason::NoBooks:
        m_idEmptyText->setText(tr("There are no books in this collection yet."));
        break;
    case EmptyReason::EmptyGroup:
        m_idEmptyText->setText(tr("There are no books in this group."));
        break;
    case EmptyReason::NothingFound:
        m_idEmptyText->setText(tr("No books match the filter."));
        break;
    }
    m_idAddFirstBook->setVisible(reason == EmptyReason::NoBooks);
    m_idClearFilter->setVisible(reason == EmptyReason::NothingFound);
}

} // namespace tomely
