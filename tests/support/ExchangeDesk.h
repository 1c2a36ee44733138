// What tests of the exchange of books share: a collection of four books and the list of it, of
// which some can be hidden.

#pragma once

#include "listwindow/engine/ListEngine.h"
#include "tests/support/FakeBookListWindow.h"
#include "tests/support/Files.h"
#include "tests/support/SmallCollection.h"

namespace tomely {

class ExchangeDesk {
public:
    ExchangeDesk() : document(FakeBookListWindow::services(list))
    {
        document.makeWindowControllers();
        list->onCall = [this](const QString& call) {
            if (call == QStringLiteral("refresh"))
                engine.loadBookKeys();
        };
        samples::addFourBooks(document);
        engine.filter().m_nSelectedFilter = ColumnKey::AuthorAndTitle;
        engine.loadBookKeys();
        document.clearChangeCount();
        list->calls.clear();
    }

    /// Shows the books of the group "Fiction": Emma and Kim.
    void selectFiction()
    {
        engine.filter().m_nSelectedGroupKey = 1;
        engine.loadBookKeys();
    }

    /// Shows the books whose title or author has the text.
    void filterBy(const QString& text)
    {
        engine.filter().m_strFilter = text;
        engine.loadBookKeys();
    }

    FakeBookListWindow* list = nullptr; // of the document
    BookListDocument document;
    ListEngine engine{document};
};

/// What a file of UTF-16 with a byte-order mark says; empty for any other.
inline QString utf16Text(const QString& path)
{
    const QByteArray bytes = samples::readFile(path);
    const QString text(reinterpret_cast<const QChar*>(bytes.constData()), bytes.size() / 2);
    return text.startsWith(QChar(QChar::ByteOrderMark)) ? text.sliced(1) : QString();
}

} // namespace tomely
