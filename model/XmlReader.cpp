#include "model/XmlReader.h"

#include <QStringConverter>

#include <expat.h>

#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

static_assert(std::is_same_v<XML_Char, char>, "texts are UTF-8");

// Of what is left unfinished at the end of a piece, the parser looks at everything again with the
// next, so pieces are not much smaller than the largest tag.
constexpr qsizetype pieceSize = 256 << 10;

struct ParserDeleter {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

class Parser {
public:
    /// `encoding` is that of the bytes whatever their declaration says; nullptr asks the latter.
    Parser(XmlHandler& handler, const char* encoding)
        : m_handler(handler)
        , m_parser(XML_ParserCreate(encoding))
    {
        if (!m_parser)
            throw std::bad_alloc();
        XML_SetUserData(m_parser.get(), this);
        XML_SetElementHandler(m_parser.get(), onStartElement, onEndElement);
        XML_SetCharacterDataHandler(m_parser.get(), onText);
        XML_SetStartDoctypeDeclHandler(m_parser.get(), onDocumentType);
    }

    void parse(QByteArrayView piece, bool isLast)
    {
        const XML_Status status =
            XML_Parse(m_parser.get(), piece.data(), static_cast<int>(piece.size()), isLast);
        if (m_failure)
            std::rethrow_exception(m_failure);
        if (status != XML_STATUS_OK)
            throw error(QString::fromLatin1(XML_ErrorString(XML_GetErrorCode(m_parser.get()))));
        m_parsed += piece.size();
        if (m_parsed - XML_GetCurrentByteIndex(m_parser.get()) > XmlLimits::MarkupBytes)
            throw error(u"a tag that is too long"_s);
    }

private:
    static void XMLCALL onStartElement(void* parser, const char* name, const char** /*attributes*/)
    {
        static_cast<Parser*>(parser)->startElement(name);
    }

    static void XMLCALL onEndElement(void* parser, const char* /*name*/)
    {
        auto& self = *static_cast<Parser*>(parser);
        --self.m_depth;
        self.guarded([&self] { self.m_handler.endElement(); });
    }

    static void XMLCALL onText(void* parser, const char* text, int length)
    {
        auto& self = *static_cast<Parser*>(parser);
        self.guarded([&] { self.m_handler.text({text, static_cast<std::size_t>(length)}); });
    }

    static void XMLCALL onDocumentType(void* parser, const char* /*name*/, const char* /*systemId*/,
        const char* /*publicId*/, int /*hasInternalSubset*/)
    {
        auto& self = *static_cast<Parser*>(parser);
        self.guarded([&self] { throw self.error(u"a document type declaration"_s); });
    }

    void startElement(const char* name)
    {
        ++m_depth;
        guarded([&] {
            if (m_depth > XmlLimits::Depth)
                throw error(u"elements too deep in each other"_s);
            // Counted in names and values.
            if (XML_GetSpecifiedAttributeCount(m_parser.get()) > 2 * XmlLimits::Attributes)
                throw error(u"too many attributes"_s);
            m_handler.startElement(name);
        });
    }

    /// Nothing may be thrown through the parser, which is written in C: it is stopped, and what was
    /// thrown waits until it has come to its end. It may still call a handler or two.
    template <class Work>
    void guarded(Work work) noexcept
    {
        if (m_failure)
            return;
        try {
            work();
        } catch (...) {
            m_failure = std::current_exception();
            XML_StopParser(m_parser.get(), XML_FALSE);
        }
    }

    XmlError error(const QString& what) const
    {
        const auto line = static_cast<qulonglong>(XML_GetCurrentLineNumber(m_parser.get()));
        return XmlError(u"line %1: "_s.arg(line) + what);
    }

    XmlHandler& m_handler;
    std::unique_ptr<std::remove_pointer_t<XML_Parser>, ParserDeleter> m_parser;
    std::exception_ptr m_failure;
    qint64 m_parsed = 0;
    int m_depth = 0;
};

/// Turns UTF-16 and UTF-32 into UTF-8 piece by piece: the parser knows UTF-8 best.
class Utf8Pieces {
public:
    explicit Utf8Pieces(QStringConverter::Encoding encoding) : m_decoder(encoding) { }

    QByteArray converted(QByteArrayView piece, bool isLast)
    {
        const QString text = m_decoder(piece);
        // The encoder keeps the first half of a character that the end of a piece cuts in two.
        QByteArray utf8 = m_encoder(text);
        const bool isCutOff = isLast && !text.isEmpty() && text.back().isHighSurrogate();
        if (m_encoder.hasError() || isCutOff)
            throw XmlError(u"half of a character"_s);
        return utf8;
    }

private:
    QStringDecoder m_decoder;
    QStringEncoder m_encoder{QStringConverter::Utf8};
};

/// The encoding, when it is one whose characters take two or four bytes.
std::optional<QStringConverter::Encoding> wideEncoding(QByteArrayView bytes)
{
    const auto encoding = QStringConverter::encodingForData(bytes, u'<');
    return encoding == QStringConverter::Utf8 ? std::nullopt : encoding;
}

int bytesPerUnit(QStringConverter::Encoding encoding)
{
    const bool isUtf16 = encoding == QStringConverter::Utf16LE
        || encoding == QStringConverter::Utf16BE || encoding == QStringConverter::Utf16;
    return isUtf16 ? 2 : 4;
}

} // namespace

void readXml(QByteArrayView bytes, XmlHandler& handler, const Progress& progress)
{
    const auto wide = wideEncoding(bytes);
    if (wide && bytes.size() % bytesPerUnit(*wide) != 0)
        throw XmlError(u"half of a character at the end"_s);
    std::optional<Utf8Pieces> pieces;
    if (wide)
        pieces.emplace(*wide);
    Parser parser(handler, wide ? "UTF-8" : nullptr);
    qsizetype done = 0;
    do {
        const QByteArrayView piece = bytes.sliced(done, std::min(pieceSize, bytes.size() - done));
        done += piece.size();
        const bool isLast = done == bytes.size();
        parser.parse(pieces ? pieces->converted(piece, isLast) : piece, isLast);
        if (progress)
            progress(done, bytes.size());
    } while (done < bytes.size());
}

} // namespace tomely
