#include "model/BookCollectionXml.h"

#include "model/BookXmlNode.h"
#include "model/XmlReader.h"

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr qint64 booksBetweenReports = 1000;
constexpr std::size_t usualBookUnits = 900; // a guess that spares most of the growing

/// Finds the books among the elements: root, "Books", "Book".
class BookCollector : public XmlHandler {
public:
    explicit BookCollector(std::size_t mostBooks) : m_mostBooks(mostBooks) { }

    ReadBooks takeBooks() { return std::move(m_books); }

    void startElement(std::string_view name) override
    {
        ++m_depth;
        if (m_depth == listDepth && name == "Books")
            startList();
        else if (m_depth == bookDepth)
            m_isInBook = m_isInList && name == "Book";
        else if (m_isInBook)
            m_node.startElement(name);
    }

    void endElement() override
    {
        if (m_depth == listDepth)
            m_isInList = false;
        else if (m_depth == bookDepth && m_isInBook)
            endBook();
        else if (m_isInBook)
            m_node.endElement();
        --m_depth;
    }

    void text(std::string_view utf8) override
    {
        if (m_isInBook)
            m_node.appendText(utf8);
    }

private:
    static constexpr int listDepth = 2;
    static constexpr int bookDepth = 3;

    void startList()
    {
        ++m_listCount;
        m_isInList = m_listCount == 1;
        if (!m_isInList)
            m_books.clear(); // nobody can say which of the lists is meant
    }

    void endBook()
    {
        if (m_books.size() == m_mostBooks)
            throw XmlError(u"too many books"_s);
        auto book = std::make_unique<BookEntry>();
        book->initFromXMLNode(m_node);
        m_books.push_back(std::move(book));
        m_node.clear();
        m_isInBook = false;
    }

    std::size_t m_mostBooks;
    ReadBooks m_books;
    BookXmlNode m_node;
    int m_depth = 0;
    int m_listCount = 0;
    bool m_isInList = false; // the first one
    bool m_isInBook = false;
};

} // namespace

std::u16string bookCollectionXml(std::span<BookEntry* const> books, const Progress& progress)
{
    std::u16string xml;
    xml.reserve(books.size() * usualBookUnits);
    xml += u"\uFEFF<BookCollection>\n<Books>\n";
    qint64 done = 0;
    for (const BookEntry* const book : books) {
        appendBookXml(*book, xml);
        if (++done % booksBetweenReports == 0 && progress)
            progress(done, std::ssize(books));
    }
    xml += u"</Books>\n</BookCollection>";
    return xml;
}

ReadBooks readBookCollectionXml(QByteArrayView bytes, const Progress& progress)
{
    return readBookCollectionXml(bytes, progress, mostXmlBooks(bytes.size()));
}

ReadBooks readBookCollectionXml(
    QByteArrayView bytes, const Progress& progress, std::size_t mostBooks)
{
    BookCollector collector(mostBooks);
    readXml(bytes, collector, progress);
    return collector.takeBooks();
}

} // namespace tomely
