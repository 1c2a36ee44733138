#include "editor/lookup/BookPage.h"

#include "editor/lookup/LookupLog.h"
#include "editor/lookup/LookupText.h"

#include <array>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

struct Markers {
    QStringView start;
    QStringView end;
};

QString cleanedText(QStringView text)
{
    return boundedText(cleanString(text));
}

/// "320" of "Paperback, 320 pages"; null when the text is not of that form. "320 pages" is not:
/// what stands before the number is taken for a part of the form, as it is on every page.
QString pageCount(QStringView text)
{
    const QStringView format = cleanString(text);
    const qsizetype lastSpace = format.lastIndexOf(u' ');
    if (lastSpace < 0 || format.sliced(lastSpace + 1).compare("pages"_L1, Qt::CaseInsensitive) != 0)
        return {};
    const QStringView rest = format.first(lastSpace);
    const qsizetype space = rest.lastIndexOf(u' ');
    return space < 0 ? QString() : boundedText(rest.sliced(space + 1));
}

/// Where a field stands on the page.
struct PageField {
    QString BookDetails::*field;
    QString step;
    Markers outer;
    Markers inner; // within what is found between the outer ones; empty where that is all
    QString (*read)(QStringView text);
};

const auto& pageFields()
{
    constexpr Markers heading{u"<h1>", u"</h1>"};
    constexpr Markers linkedName{u"\">", u"</a>"};
    constexpr Markers detail{u"<span class=\"book-detail\">", u"</span>"};
    // In this order.
    static const std::array fields = std::to_array<PageField>({
        {&BookDetails::largeImageURL, u"Lookup 2: LargeImage"_s,
            {u"<meta property=\"og:image\" content=\"", u"\""}, {}, &boundedAddress},
        {&BookDetails::title, u"Lookup 2: Title"_s,
            {u"<div class=\"book-heading-row\">", u"</div>"}, heading, &cleanedText},
        {&BookDetails::author, u"Lookup 2: Author"_s, {u"<span>Author(s)</span>", u"</div>"},
            linkedName, &cleanedText},
        {&BookDetails::numberOfPages, u"Lookup 2: Number of Pages"_s,
            {u"<div class=\"min_frmt\">", u"</div>"}, detail, &pageCount},
        {&BookDetails::publicationDate, u"Lookup 2: PublicationDate"_s,
            {u"<span>Published</span>", u"</div>"}, detail, &cleanedText},
        {&BookDetails::publisher, u"Lookup 2: Publisher"_s, {u"<span>Publisher</span>", u"</div>"},
            detail, &cleanedText},
    });
    return fields;
}

QStringView foundBetween(QStringView text, const Markers& markers)
{
    return markers.start.isEmpty() ? text : extractValue(text, markers.start, markers.end);
}

} // namespace

void fillFromBookPage(QStringView page, const QString& isbn, BookDetails& details)
{
    for (const PageField& place : pageFields()) {
        QString& field = details.*place.field;
        if (!field.isEmpty())
            continue;
        logLookup(place.step);
        field = place.read(foundBetween(foundBetween(page, place.outer), place.inner));
    }
    details.isbn = isbn;
}

} // namespace tomely
