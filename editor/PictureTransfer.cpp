#include "editor/PictureTransfer.h"

#include "model/PictureLimits.h"
#include "platform/FileReading.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QMimeData>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

// Without loss first: a program that offers several has its own picture in the best of them.
constexpr std::array preferredFormats{"image/png"_L1, "image/tiff"_L1, "image/jpeg"_L1};

constexpr auto tiffFormat = "image/tiff"_L1;

// A whole folder of other things dropped by mistake is refused without reading all of it.
constexpr qsizetype mostFilesTried = 16;

Picture pictureFromFile(const QString& path)
{
    // A film that is dropped by mistake is not read.
    if (QFileInfo(path).size() > PictureLimits::MaximumEncodedBytes)
        return {};
    const auto content = readWholeFile(path);
    const QByteArray* const bytes = std::get_if<QByteArray>(&content);
    return bytes ? Picture::fromEncoded(*bytes) : Picture();
}

Picture pictureFromFiles(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls.first(std::min(urls.size(), mostFilesTried))) {
        if (!url.isLocalFile())
            continue;
        Picture picture = pictureFromFile(url.toLocalFile());
        if (picture.isValid())
            return picture;
    }
    return {};
}

/// The formats in which `data` holds an encoded picture, the best first. What they are called does
/// not matter, since the bytes tell what they are; only a drawing is known to be none.
QStringList encodedFormats(const QMimeData& data)
{
    QStringList formats = data.formats().filter(QRegularExpression(u"^image/(?!svg)"_s));
    const auto rank = [](const QString& format) {
        return std::find(preferredFormats.begin(), preferredFormats.end(), format)
            - preferredFormats.begin();
    };
    std::ranges::stable_sort(formats, {}, rank);
    return formats;
}

Picture pictureFromFormats(const QMimeData& data, const QStringList& formats)
{
    for (const QString& format : formats) {
        Picture picture = Picture::fromEncoded(data.data(format));
        if (picture.isValid())
            return picture;
    }
    return {};
}

/// Encodes the picture no sooner than somebody asks for it, since most drags end nowhere.
class TiffMimeData : public QMimeData {
    Q_OBJECT

public:
    explicit TiffMimeData(const Picture& picture) : m_picture(picture) { }

    const Picture& picture() const { return m_picture; }

    bool hasFormat(const QString& format) const override { return format == tiffFormat; }

    QStringList formats() const override { return {tiffFormat}; }

protected:
    QVariant retrieveData(const QString& format, QMetaType) const override
    {
        if (format != tiffFormat)
            return {};
        if (m_encoded.isEmpty())
            m_encoded = encoded();
        return m_encoded;
    }

private:
    QByteArray encoded() const
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        QImageWriter writer(&buffer, "tiff");
        return writer.write(m_picture.image()) ? bytes : QByteArray();
    }

    Picture m_picture;
    mutable QByteArray m_encoded;
};

} // namespace

bool offersPicture(const QMimeData& data)
{
    if (!encodedFormats(data).isEmpty() || data.hasImage())
        return true;
    return std::ranges::any_of(data.urls(), &QUrl::isLocalFile);
}

Picture pictureFrom(const QMimeData& data)
{
    // From a well of this program, the very picture: encoding it on the way would only cost.
    if (const auto* const own = qobject_cast<const TiffMimeData*>(&data))
        return own->picture();
    if (Picture picture = pictureFromFiles(data); picture.isValid())
        return picture;
    const QStringList formats = encodedFormats(data);
    if (!formats.isEmpty())
        return pictureFromFormats(data, formats);
    // Only this program itself offers a picture without any encoding. Asked for a decoded picture
    // of another program's bytes, the toolkit would decode without limits what was refused before.
    return Picture::fromImage(qvariant_cast<QImage>(data.imageData()));
}

std::unique_ptr<QMimeData> tiffMimeData(const Picture& picture)
{
    return std::make_unique<TiffMimeData>(picture);
}

std::unique_ptr<QMimeData> clipboardMimeData(const Picture& picture)
{
    const QImage image = picture.image();
    if (image.isNull())
        return nullptr;
    auto data = std::make_unique<QMimeData>();
    data->setImageData(image);
    return data;
}

} // namespace tomely

#include "PictureTransfer.moc"
