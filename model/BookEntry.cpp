#include "model/BookEntry.h"

#include "model/BookImages.h"
#include "model/CaseFolding.h"
#include "model/KeyText.h"
#include "model/Picture.h"
#include "model/TextTrimming.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr std::array typeTexts = {QT_TRANSLATE_NOOP("BookType", "Hardcover"),
    QT_TRANSLATE_NOOP("BookType", "Paperback"), QT_TRANSLATE_NOOP("BookType", "Audio Book"),
    QT_TRANSLATE_NOOP("BookType", "eBook")};
constexpr qint32 typeOfEmptyText = 4;
constexpr qint32 typeOfUnknownText = 1;

} // namespace

void BookEntry::setKey(qint32 number)
{
    change(m_strBookKey, keyText(number));
}

void BookEntry::setTitle(const QString& value)
{
    change(m_strTitle, trimmedText(value));
}

void BookEntry::setAuthor(const QString& value)
{
    change(m_strAuthor, trimmedText(value));
}

void BookEntry::setNotes(const QString& value)
{
    change(m_strNotes, trimmedText(value));
}

QString BookEntry::typeText(qint32 type)
{
    const auto index = static_cast<std::size_t>(static_cast<quint32>(type));
    return index < typeTexts.size() ? QString::fromLatin1(typeTexts.at(index)) : u""_s;
}

qint32 BookEntry::getTypeNum(QStringView text)
{
    if (text.isEmpty())
        return typeOfEmptyText;
    for (std::size_t type = 0; type < typeTexts.size(); ++type) {
        if (compareIgnoringCase(text, QString::fromLatin1(typeTexts.at(type))) == 0)
            return static_cast<qint32>(type);
    }
    return typeOfUnknownText;
}

void BookEntry::setSelectedGroups(GroupMembership groups)
{
    m_dSelectedGroups = std::move(groups);
    m_changeStamp.tick();
}

void BookEntry::addToGroup(const QString& groupKey)
{
    if (m_dSelectedGroups.contains(groupKey))
        return;
    m_dSelectedGroups.insert(groupKey);
    m_changeStamp.tick();
}

bool BookEntry::removeFromGroup(QStringView groupKey)
{
    if (!m_dSelectedGroups.remove(groupKey))
        return false;
    m_changeStamp.tick();
    return true;
}

void BookEntry::setImageData(int slot, const QByteArray& jpeg)
{
    change(m_images.at(imageIndex(slot)), jpeg);
}

void BookEntry::setImage(int slot, const Picture& picture, const UserDefaults& defaults)
{
    const QSize bound = imageBound(slot);
    setImageData(slot, scaleAndSaveAsJPEG(picture, bound.width(), bound.height(), defaults));
}

int BookEntry::scaleEachImage(const UserDefaults& defaults)
{
    int replaced = 0;
    for (int slot = 1; slot <= ImageCount; ++slot) {
        const QSize bound = imageBound(slot);
        const Picture picture = getPicture(slot);
        if (!shouldScaleImage(picture, bound.width(), bound.height()))
            continue;
        const QByteArray jpeg = scaleAndSaveAsJPEGScaled(
            picture, bound.width(), bound.height(), /*scaleImage=*/true, defaults);
        if (jpeg.isNull() && picture.imageFor(bound).isNull())
            continue;
        setImageData(slot, jpeg);
        ++replaced;
    }
    return replaced;
}

Picture BookEntry::getPicture(int slot) const
{
    const QByteArray& bytes = m_images.at(imageIndex(slot));
    return bytes.isEmpty() ? Picture() : Picture::fromStored(bytes);
}

QImage BookEntry::getImage(int slot) const
{
    return getPicture(slot).image();
}

bool BookEntry::hasImages() const
{
    return std::any_of(
        m_images.begin(), m_images.end(), [](const QByteArray& jpeg) { return !jpeg.isNull(); });
}

QImage BookEntry::getFirstImage() const
{
    for (int slot = 1; slot <= ImageCount; ++slot) {
        if (!m_images.at(imageIndex(slot)).isNull())
            return getImage(slot);
    }
    return {};
}

QString BookEntry::present(const QString& text)
{
    return text.isNull() ? u""_s : text;
}

} // namespace tomely
