// What the "Book" element of an XML file holds of a book's fields, collected while a reader walks
// over it. Children that are no field are forgotten at once, so an element of any size stays small.

#pragma once

#include "model/BookXml.h"

#include <string>
#include <string_view>
#include <vector>

namespace tomely {

class BookXmlNode {
public:
    BookXmlNode() : m_children(bookElements().size()) { }

    /// Makes it the element of the next book.
    void clear();

    // What the reader meets between the tags of the book.
    void startElement(std::string_view name);
    void endElement();
    void appendText(std::string_view utf8);

    // `element` is an index into bookElements(). A text includes that of elements inside. nullptr
    // unless there is exactly one such child.
    const std::string* text(std::size_t element) const;
    const std::string* month(std::size_t element) const;
    const std::string* year(std::size_t element) const;

private:
    struct Text {
        std::size_t count = 0; // how many elements of the name there are
        std::string utf8; // the text of the first
    };

    struct Child {
        Text whole; // of a date, only how many
        Text month;
        Text year;
    };

    /// Where the text of one more element goes; nullptr when it no longer counts.
    static std::string* begin(Text& text) { return ++text.count == 1 ? &text.utf8 : nullptr; }

    static const std::string* only(const Text& text)
    {
        return text.count == 1 ? &text.utf8 : nullptr;
    }

    void startChild(std::string_view name);
    void startDatePart(std::string_view name);

    std::vector<Child> m_children; // as bookElements()
    std::vector<Child*> m_used; // those that are not empty
    int m_depth = 0;
    Child* m_date = nullptr; // the date that is open
    std::string* m_text = nullptr; // what takes the text that comes; nullptr for nothing
};

} // namespace tomely
