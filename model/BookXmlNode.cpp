#include "model/BookXmlNode.h"

#include <unordered_map>

namespace tomely {

namespace {

struct NameHash : std::hash<std::string_view> {
    using is_transparent = void;
};

using ElementIndex = std::unordered_map<std::string, std::size_t, NameHash, std::equal_to<>>;

ElementIndex makeElementIndex()
{
    ElementIndex index;
    for (const BookElement& element : bookElements())
        index.emplace(std::string(element.name.begin(), element.name.end()), index.size());
    return index;
}

} // namespace

void BookXmlNode::clear()
{
    for (Child* const child : m_used) {
        for (Text* const text : {&child->whole, &child->month, &child->year}) {
            text->count = 0;
            text->utf8.clear();
        }
    }
    m_used.clear();
    m_depth = 0;
    m_date = nullptr;
    m_text = nullptr;
}

void BookXmlNode::startElement(std::string_view name)
{
    ++m_depth;
    if (m_depth == 1)
        startChild(name);
    else if (m_depth == 2 && m_date)
        startDatePart(name);
}

void BookXmlNode::startChild(std::string_view name)
{
    static const ElementIndex index = makeElementIndex();
    const auto place = index.find(name);
    if (place == index.end())
        return;
    Child& child = m_children[place->second];
    if (child.whole.count == 0)
        m_used.push_back(&child);
    m_text = begin(child.whole);
    if (bookElements()[place->second].value == BookElement::Value::Date) {
        m_date = &child;
        m_text = nullptr;
    }
}

void BookXmlNode::startDatePart(std::string_view name)
{
    if (name == "Month")
        m_text = begin(m_date->month);
    else if (name == "Year")
        m_text = begin(m_date->year);
}

void BookXmlNode::endElement()
{
    --m_depth;
    if (m_depth == 0 || (m_depth == 1 && m_date))
        m_text = nullptr;
    if (m_depth == 0)
        m_date = nullptr;
}

void BookXmlNode::appendText(std::string_view utf8)
{
    if (m_text)
        m_text->append(utf8);
}

const std::string* BookXmlNode::text(std::size_t element) const
{
    return only(m_children.at(element).whole);
}

const std::string* BookXmlNode::month(std::size_t element) const
{
    const Child& child = m_children.at(element);
    return only(child.whole) ? only(child.month) : nullptr;
}

const std::string* BookXmlNode::year(std::size_t element) const
{
    const Child& child = m_children.at(element);
    return only(child.whole) ? only(child.year) : nullptr;
}

} // namespace tomely
