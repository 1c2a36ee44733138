// A strict reader of XML in any Unicode encoding, for files of any origin and size: it tells a
// handler of elements and texts as it meets them and keeps none of them. What the elements mean it
// does not know.

#pragma once

#include "platform/Progress.h"

#include <QByteArrayView>
#include <QString>

#include <exception>
#include <string_view>

namespace tomely {

/// Thrown for what is not well-formed, and for what is well-formed and unreasonable.
class XmlError : public std::exception {
public:
    explicit XmlError(QString message) : m_message(std::move(message)) { }

    /// Where and what: "line 3: mismatched tag". In English.
    const QString& message() const { return m_message; }

    const char* what() const noexcept override { return "not an XML file that can be read"; }

private:
    QString m_message;
};

/// Names and texts are UTF-8 and good only during the call. Whatever these throw ends the reading
/// and comes out of readXml().
class XmlHandler {
public:
    XmlHandler() = default;
    Q_DISABLE_COPY_MOVE(XmlHandler)
    virtual ~XmlHandler() = default;

    virtual void startElement(std::string_view name) = 0;
    virtual void endElement() = 0;
    /// A piece of the text of the innermost open element; a text may come in several.
    virtual void text(std::string_view utf8) = 0;
};

// Far above what any file with data in it has, low enough that no file can exhaust the machine.
struct XmlLimits {
    static constexpr int Depth = 100; // of elements inside each other
    static constexpr int Attributes = 1000; // of one element
    static constexpr qint64 MarkupBytes = 1 << 20; // of one tag or comment, roughly
};

/// Reads the whole document. Attributes, comments and processing instructions are skipped, names
/// are taken with their prefixes. A document type declaration is refused: no data needs one, and
/// entities declared in it can grow without bound. The encoding is that of the byte-order mark, or
/// the declared one, or recognised by the first character. Reports progress in bytes and may be
/// left by it. Throws XmlError.
void readXml(QByteArrayView bytes, XmlHandler& handler, const Progress& progress = {});

} // namespace tomely
