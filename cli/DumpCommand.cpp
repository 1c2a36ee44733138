#include "cli/Commands.h"
#include "cli/JsonWriter.h"
#include "cli/OpenedCollection.h"
#include "model/BookField.h"

#include <QCryptographicHash>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

using Layout = JsonWriter::Layout;

class Dump {
public:
    explicit Dump(Output& output) : m_json(output) { }

    void write(const BookListDocument& document)
    {
        m_json.beginObject(Layout::Lines);
        integer("version"_L1, document.fileVersion());
        integer("lastGroupKey"_L1, document.lastGroupKey());
        integer("lastBookNumber"_L1, document.lastBookNumber());
        integer("sortField"_L1, document.getSortField());
        writeGroups(document.getGroups());
        writeLabels(document.customFieldLabels());
        writeColumns(document.getListColumns());
        writeLayout(document);
        m_json.name("books"_L1);
        m_json.beginObject(Layout::Lines);
        for (const auto& [key, book] : document.books()) {
            m_json.name(key);
            writeBook(*book);
        }
        m_json.endObject();
        m_json.endObject();
    }

private:
    void integer(QLatin1StringView name, qint64 value)
    {
        m_json.name(name);
        m_json.integer(value);
    }

    void text(QLatin1StringView name, const QString& value)
    {
        m_json.name(name);
        m_json.text(value);
    }

    void writeGroups(const GroupDictionary& groups)
    {
        m_json.name("groups"_L1);
        m_json.beginObject();
        for (const auto& [key, group] : groups.byKey()) {
            m_json.name(key);
            m_json.text(group.getGroupName());
        }
        m_json.endObject();
    }

    void writeLabels(const LabelDictionary& labels)
    {
        m_json.name("labels"_L1);
        m_json.beginObject();
        for (const auto& [key, label] : labels) {
            m_json.name(keyText(key));
            m_json.text(label);
        }
        m_json.endObject();
    }

    void writeColumns(const ColumnDictionary& columns)
    {
        m_json.name("columns"_L1);
        m_json.beginObject(Layout::Lines);
        for (const auto& [key, column] : columns) {
            m_json.name(key);
            m_json.beginObject();
            text("name"_L1, column.getColumnName());
            text("selectionName"_L1, column.getSelectionName());
            integer("position"_L1, column.getPosition());
            integer("width"_L1, column.getWidth());
            integer("filterType"_L1, static_cast<qint32>(column.getFilterType()));
            m_json.name("centered"_L1);
            m_json.boolean(column.getCentered());
            m_json.endObject();
        }
        m_json.endObject();
    }

    void writeFrame(const QRectF& frame)
    {
        m_json.beginArray();
        for (const double value : {frame.x(), frame.y(), frame.width(), frame.height()})
            m_json.real(value);
        m_json.endArray();
    }

    void writePanes(QLatin1StringView name, const QRectF& first, const QRectF& second)
    {
        m_json.name(name);
        m_json.beginArray();
        writeFrame(first);
        writeFrame(second);
        m_json.endArray();
    }

    void writeLayout(const BookListDocument& document)
    {
        m_json.name("windowFrame"_L1);
        writeFrame(document.getSavedWindowPosition());
        m_json.name("customizeListFrame"_L1);
        writeFrame(document.getCustomizeListControllerWindowPosition());
        m_json.name("groupManagerFrame"_L1);
        writeFrame(document.getGroupListControllerWindowPosition());
        writePanes("imageSplitter"_L1, document.getSavedImageSplitterView1Size(),
            document.getSavedImageSplitterView2Size());
        writePanes("listSplitter"_L1, document.getSavedListSplitterView1Size(),
            document.getSavedListSplitterView2Size());
    }

    void writeBook(const BookEntry& book)
    {
        m_json.beginObject();
        text("key"_L1, book.getKey());
        for (const BookField& field : bookFields())
            writeField(book, field);
        writeMembership(book.getSelectedGroups());
        writeImages(book);
        m_json.endObject();
    }

    void writeField(const BookEntry& book, const BookField& field)
    {
        m_json.name(QLatin1StringView(field.name));
        switch (field.kind) {
        case FieldKind::Text:
        case FieldKind::Year:
            return m_json.text(field.storedText(book));
        case FieldKind::Month:
        case FieldKind::Integer:
        case FieldKind::Rating:
        case FieldKind::Type:
            return m_json.integer(field.integer(book));
        case FieldKind::Real:
            return m_json.real(field.real(book));
        case FieldKind::Flag:
            return m_json.boolean(field.flag(book));
        }
    }

    void writeMembership(const GroupMembership& groups)
    {
        m_json.name("groups"_L1);
        m_json.beginObject();
        for (const GroupMembership::Entry& entry : groups) {
            m_json.name(entry.key);
            m_json.text(entry.value);
        }
        m_json.endObject();
    }

    void writeImages(const BookEntry& book)
    {
        m_json.name("images"_L1);
        m_json.beginArray();
        for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
            writeImage(book.getImageData(slot));
        m_json.endArray();
    }

    void writeImage(const QByteArray& jpeg)
    {
        if (jpeg.isNull())
            return m_json.null();
        m_json.beginObject();
        integer("bytes"_L1, jpeg.size());
        m_json.name("sha1"_L1);
        m_json.text(
            QString::fromLatin1(QCryptographicHash::hash(jpeg, QCryptographicHash::Sha1).toHex()));
        m_json.endObject();
    }

    JsonWriter m_json;
};

} // namespace

void runDump(const Arguments& arguments, Output& output)
{
    Dump(output).write(*openCollection(arguments.operands.front()));
}

} // namespace tomely
