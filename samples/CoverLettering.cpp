#include "samples/CoverLettering.h"

#include <QPainter>
#include <QPainterPath>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <algorithm>
#include <memory>
#include <vector>

namespace tomely {

namespace {

/// The script a text is written in, as far as the choice of a font goes. The Chinese characters are
/// drawn differently from one language to the next, and the other letters tell which it is.
QChar::Script scriptOf(const QString& text)
{
    QChar::Script result = QChar::Script_Common;
    for (const QChar character : text) {
        switch (const QChar::Script script = character.script()) {
        case QChar::Script_Common:
        case QChar::Script_Inherited:
            break;
        case QChar::Script_Hiragana:
        case QChar::Script_Katakana:
        case QChar::Script_Hangul:
            return script;
        default:
            result = result == QChar::Script_Common ? script : result;
        }
    }
    return result;
}

/// Empty for the scripts that the plain families have themselves.
QString familySuffix(QChar::Script script)
{
    switch (script) {
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
        return QStringLiteral(" CJK JP");
    case QChar::Script_Hangul:
        return QStringLiteral(" CJK KR");
    case QChar::Script_Han:
        return QStringLiteral(" CJK SC");
    case QChar::Script_Arabic:
        return QStringLiteral(" Arabic");
    case QChar::Script_Hebrew:
        return QStringLiteral(" Hebrew");
    case QChar::Script_Devanagari:
        return QStringLiteral(" Devanagari");
    default:
        return {};
    }
}

bool isEveryLetter(const QString& text, bool (*test)(QChar::Script))
{
    return std::all_of(text.begin(), text.end(), [test](QChar character) {
        const QChar::Script script = character.script();
        return script == QChar::Script_Common || script == QChar::Script_Inherited || test(script);
    });
}

/// Greek capitals drop their accents, which Qt does not do, so Greek stays as it is.
bool hasPlainCapitals(QChar::Script script)
{
    return script == QChar::Script_Latin || script == QChar::Script_Cyrillic;
}

bool standsSpacing(QChar::Script script)
{
    return hasPlainCapitals(script) || script == QChar::Script_Greek || script == QChar::Script_Han
        || script == QChar::Script_Hiragana || script == QChar::Script_Katakana;
}

QStringList families(const QString& text, CoverFace face, double size)
{
    // The hairlines of the display cuts are made for headings and vanish in small print.
    const bool display = size >= 32;
    const QString serif = QStringLiteral("Noto Serif");
    const QString sans = QStringLiteral("Noto Sans");
    const QString& base = face == CoverFace::Serif ? serif : sans;
    const QString suffix = familySuffix(scriptOf(text));
    QStringList names;
    if (face == CoverFace::Serif && suffix == QLatin1String(" Arabic")) {
        names << QStringLiteral("Noto Naskh Arabic");
    } else if (!suffix.isEmpty()) {
        names << base + suffix;
    }
    if (display) {
        names << base + QStringLiteral(" Display");
    }
    names << base;
    names << (face == CoverFace::Serif ? QStringLiteral("DejaVu Serif")
                                       : QStringLiteral("DejaVu Sans"));
    return names;
}

QFont coverFont(const QString& text, CoverFace face, double size)
{
    QFont font;
    font.setFamilies(families(text, face, size));
    font.setStyleHint(face == CoverFace::Serif ? QFont::Serif : QFont::SansSerif);
    font.setPixelSize(std::max(1, qRound(size)));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QFont letteringFont(const QString& text, const CoverLettering& lettering, double size)
{
    QFont font = coverFont(text, lettering.face, size);
    font.setBold(lettering.bold);
    font.setItalic(lettering.italic && isEveryLetter(text, hasPlainCapitals));
    if (isEveryLetter(text, standsSpacing)) {
        font.setLetterSpacing(QFont::PercentageSpacing, 100 + lettering.spacing);
    }
    return font;
}

/// A text broken into lines for one width and size.
class Paragraph {
public:
    Paragraph(const QString& text, const QFont& font, double width, bool mayBreakWords)
        : m_layout(std::make_unique<QTextLayout>(text, font))
    {
        QTextOption option;
        option.setWrapMode(
            mayBreakWords ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::WordWrap);
        m_layout->setTextOption(option);
        breakLines(width);
        m_fits = widest() <= width;
        if (m_fits && m_layout->lineCount() > 1) {
            evenOut(width);
        }
    }

    bool fits() const { return m_fits; }

    double height() const { return m_height; }

    double widest() const
    {
        double result = 0;
        for (int i = 0; i < m_layout->lineCount(); ++i) {
            result = std::max(result, m_layout->lineAt(i).naturalTextWidth());
        }
        return result;
    }

    void draw(QPainter& painter, const QRectF& box, double top, Qt::Alignment alignment) const
    {
        const bool rightToLeft = m_layout->text().isRightToLeft();
        for (int i = 0; i < m_layout->lineCount(); ++i) {
            QTextLine line = m_layout->lineAt(i);
            const double spare = box.width() - line.naturalTextWidth();
            double left = box.left();
            if ((alignment & Qt::AlignHCenter) != 0) {
                left += spare / 2;
            } else if (((alignment & Qt::AlignRight) != 0) != rightToLeft) {
                left += spare;
            }
            line.draw(&painter, {left - line.x() - hiddenStart(line), top});
        }
    }

private:
    /// Qt sets right-to-left lines against the far edge of their width; drawing places lines
    /// itself.
    static double hiddenStart(const QTextLine& line)
    {
        return line.naturalTextRect().left() - line.x();
    }

    void breakLines(double width)
    {
        m_layout->beginLayout();
        m_height = 0;
        for (QTextLine line = m_layout->createLine(); line.isValid();
             line = m_layout->createLine()) {
            line.setLineWidth(width);
            line.setPosition({0, m_height});
            m_height += line.height() * 0.94;
        }
        m_layout->endLayout();
    }

    /// The narrowest width that needs no further line gives lines of about the same length.
    void evenOut(double width)
    {
        const int lines = m_layout->lineCount();
        double low = width / lines;
        double high = width;
        while (high - low > 1) {
            const double middle = (low + high) / 2;
            breakLines(middle);
            if (m_layout->lineCount() > lines || widest() > middle) {
                low = middle;
            } else {
                high = middle;
            }
        }
        breakLines(high);
    }

    std::unique_ptr<QTextLayout> m_layout;
    double m_height = 0;
    bool m_fits = false;
};

struct Part {
    QString text;
    CoverLettering lettering;
    double scale = 1;
};

using Paragraphs = std::vector<Paragraph>;

Paragraphs setAt(double size, const std::vector<Part>& parts, double width, bool mayBreakWords)
{
    Paragraphs paragraphs;
    for (const Part& part : parts) {
        const double partSize = std::max(part.lettering.smallest, size * part.scale);
        const QString text = part.lettering.capitals && isEveryLetter(part.text, hasPlainCapitals)
            ? part.text.toUpper()
            : part.text;
        paragraphs.emplace_back(
            text, letteringFont(text, part.lettering, partSize), width, mayBreakWords);
    }
    return paragraphs;
}

double heightOf(const Paragraphs& paragraphs, double gap)
{
    double height = gap * static_cast<double>(paragraphs.size() - 1);
    for (const Paragraph& paragraph : paragraphs) {
        height += paragraph.height();
    }
    return height;
}

QRectF drawParts(QPainter& painter, const QRectF& box, const std::vector<Part>& parts)
{
    const CoverLettering& lettering = parts.front().lettering;
    double size = lettering.largest;
    Paragraphs paragraphs;
    for (;; size -= 1) {
        const bool last = size <= lettering.smallest;
        paragraphs = setAt(size, parts, box.width(), last);
        const bool fits = std::all_of(paragraphs.begin(), paragraphs.end(),
            [](const Paragraph& paragraph) { return paragraph.fits(); });
        if (last || (fits && heightOf(paragraphs, size * 0.2) <= box.height())) {
            break;
        }
    }
    const double gap = size * 0.2;
    const double height = heightOf(paragraphs, gap);
    double top = box.top();
    if ((lettering.alignment & Qt::AlignVCenter) != 0) {
        top += (box.height() - height) / 2;
    } else if ((lettering.alignment & Qt::AlignBottom) != 0) {
        top += box.height() - height;
    }
    const QRectF covered(box.left(), top, box.width(), height);
    painter.setPen(lettering.color);
    for (const Paragraph& paragraph : paragraphs) {
        paragraph.draw(painter, box, top, lettering.alignment);
        top += paragraph.height() + gap;
    }
    return covered;
}

} // namespace

QRectF drawCoverTitle(
    QPainter& painter, const QRectF& box, const QString& title, const CoverLettering& lettering)
{
    const qsizetype colon = title.indexOf(QStringLiteral(": "));
    if (colon < 0) {
        return drawParts(painter, box, {{title, lettering, 1}});
    }
    CoverLettering small = lettering;
    small.bold = false;
    return drawParts(
        painter, box, {{title.left(colon), lettering, 1}, {title.mid(colon + 2), small, 0.5}});
}

QRectF drawCoverText(
    QPainter& painter, const QRectF& box, const QString& text, const CoverLettering& lettering)
{
    return drawParts(painter, box, {{text, lettering, 1}});
}

QPainterPath coverInitial(const QRectF& box, const QString& title, CoverFace face, bool bold)
{
    QString words = title;
    for (const QString& article :
        {QStringLiteral("The "), QStringLiteral("An "), QStringLiteral("A ")}) {
        if (words.startsWith(article)) {
            words = words.mid(article.size());
            break;
        }
    }
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, words);
    const qsizetype end = finder.toNextBoundary();
    const QString letter = words.left(end > 0 ? end : 1);
    QFont font = coverFont(title, face, 400);
    font.setBold(bold);
    QPainterPath path;
    path.addText(0, 0, font, letter);
    const QRectF bounds = path.boundingRect();
    if (bounds.isEmpty()) {
        return {};
    }
    const double scale = std::min(box.width() / bounds.width(), box.height() / bounds.height());
    QTransform transform;
    transform.translate(box.center().x(), box.center().y());
    transform.scale(scale, scale);
    transform.translate(-bounds.center().x(), -bounds.center().y());
    return transform.map(path);
}

} // namespace tomely
