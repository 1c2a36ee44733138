#include "editor/lookup/VolumeReply.h"

#include "editor/lookup/LookupLog.h"
#include "editor/lookup/LookupText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

QString numberText(const QJsonValue& value)
{
    if (!value.isDouble())
        return {};
    const qint64 whole = value.toInteger();
    const double number = value.toDouble();
    if (static_cast<double>(whole) == number)
        return QString::number(whole);
    if (std::trunc(number) == number)
        return QString::number(number, 'f', 0);
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

void fill(QString& field, const QString& value)
{
    if (field.isEmpty())
        field = value;
}

QString authorText(const QJsonArray& names, Authors authors)
{
    QString text;
    for (const auto& name : names) {
        if (!name.isString())
            continue;
        logLookup(u"Lookup 1: Author"_s);
        text = text.isNull() ? name.toString() : text + " and "_L1 + name.toString();
        // What comes behind would be cut off: a reply may name millions.
        if (authors == Authors::FirstOnly || text.size() > MostTextUnits)
            break;
    }
    return boundedText(text);
}

void fillImageLinks(const QJsonObject& links, BookDetails& details)
{
    struct Link {
        QLatin1StringView name;
        QString step;
        QString BookDetails::*field;
    };

    const std::array all = std::to_array<Link>({
        {"smallThumbnail"_L1, u"Lookup 1: Small Thumb"_s, &BookDetails::smallThumbnailImageURL},
        {"thumbnail"_L1, u"Lookup 1: Thumb"_s, &BookDetails::thumbnailImageURL},
        {"small"_L1, u"Lookup 1: Small"_s, &BookDetails::smallImageURL},
        {"medium"_L1, u"Lookup 1: Medium"_s, &BookDetails::mediumImageURL},
        {"large"_L1, u"Lookup 1: Large"_s, &BookDetails::largeImageURL},
    });
    for (const Link& link : all) {
        fill(details.*link.field, boundedAddress(links[link.name].toString()));
        logLookup(link.step);
    }
}

void fillFromVolumeInfo(
    const QJsonObject& info, const QString& isbn, Authors authors, BookDetails& details)
{
    fill(details.isbn, isbn);
    if (const QJsonValue title = info["title"_L1]; title.isString()) {
        fill(details.title, boundedText(title.toString()));
        logLookup(u"Lookup 1: Title"_s);
    }
    if (details.author.isEmpty())
        details.author = authorText(info["authors"_L1].toArray(), authors);
    fill(details.publisher, boundedText(info["publisher"_L1].toString()));
    logLookup(u"Lookup 1: Publisher"_s);
    fill(details.publicationDate, boundedText(info["publishedDate"_L1].toString()));
    logLookup(u"Lookup 1: Published Date"_s);
    fill(details.numberOfPages, numberText(info["printedPageCount"_L1]));
    logLookup(u"Lookup 1: Page Count"_s);
    if (const QJsonValue links = info["imageLinks"_L1]; links.isObject())
        fillImageLinks(links.toObject(), details);
}

} // namespace

QString volumeIdentifier(QStringView scriptText)
{
    constexpr QStringView start = u"?id=";
    // The script escapes the ampersand that ends the identifier.
    constexpr QStringView end = u"\\u0026";
    const qsizetype startIndex = scriptText.indexOf(start);
    const qsizetype endIndex = scriptText.indexOf(end);
    const qsizetype begin = startIndex + start.size();
    if (startIndex < 0 || endIndex < begin || endIndex - begin > MostIdentifierUnits)
        return {};
    return scriptText.sliced(begin, endIndex - begin).toString();
}

void fillFromVolume(
    const QByteArray& record, const QString& isbn, Authors authors, BookDetails& details)
{
    logLookup(u"Lookup 1: Part 3 of 5"_s);
    const QJsonDocument document = QJsonDocument::fromJson(record);
    if (document.isNull())
        return;
    logLookup(u"Lookup 1: Part 4 of 5"_s);
    const QJsonValue info = document.object()["volumeInfo"_L1];
    if (!info.isObject())
        return;
    logLookup(u"Lookup 1: Part 5 of 5"_s);
    fillFromVolumeInfo(info.toObject(), isbn, authors, details);
}

} // namespace tomely
