#include "listwindow/engine/ValueLists.h"

#include "document/BookListDocument.h"

#include <QSet>

namespace tomely {

namespace {

/// Distinct texts, in no order. A library repeats its authors and places over and over.
class DistinctTexts {
public:
    void add(const QString& text)
    {
        if (!text.isEmpty())
            m_texts.insert(text);
    }

    QStringList values() const { return {m_texts.begin(), m_texts.end()}; }

private:
    QSet<QString> m_texts;
};

} // namespace

void collectValueLists(BookListDocument& document)
{
    DistinctTexts authors;
    DistinctTexts locations;
    DistinctTexts publishers;
    DistinctTexts pricePaidLocations;
    for (const auto& [key, book] : document.books()) {
        authors.add(book->getAuthor());
        locations.add(book->getLocation());
        publishers.add(book->getPublisher());
        pricePaidLocations.add(book->getPricePaidFrom());
    }
    document.setAuthors(authors.values());
    document.setLocations(locations.values());
    document.setPublishers(publishers.values());
    document.setPricePaidLocations(pricePaidLocations.values());
}

} // namespace tomely
