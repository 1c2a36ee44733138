// A filter bar on screen over a new collection, for tests of its menu and of its pages.

#pragma once

#include "document/BookListDocument.h"
#include "listwindow/engine/BookFilter.h"
#include "listwindow/FilterBar.h"
#include "tests/listwindow/FilterHands.h"

#include <QTest>

#include <memory>

namespace tomely {

class FilterDesk {
public:
    FilterDesk()
    {
        filter.m_nSelectedFilter = ColumnKey::AuthorAndTitle;
        makeBar();
    }

    /// Another bar over the same filter and columns.
    void makeBar(const QLocale& locale = QLocale::c())
    {
        bar.reset();
        bar = std::make_unique<FilterBar>(filter, document.getListColumns(), locale);
        bar->initFilterDropDown();
        bar->show();
        if (!QTest::qWaitForWindowActive(bar.get()))
            qFatal("the bar did not become active");
    }

    BookListDocument document;
    BookFilter filter;
    std::unique_ptr<FilterBar> bar;
};

} // namespace tomely
