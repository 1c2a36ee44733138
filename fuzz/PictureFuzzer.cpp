// Any bytes as a picture, from outside and from a collection: they end in a picture of the size
// that it says, or in none. What is a picture can be shown and stored.

#include "model/BookImages.h"
#include "model/Picture.h"
#include "platform/UserDefaults.h"

#include <cstdint>
#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

// The decoders of damaged pictures are talkative.
void silence(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/) { }

void checkPicture(const tomely::Picture& picture, const tomely::UserDefaults& defaults)
{
    constexpr QSize well(218, 313);
    if (!picture.isValid()) {
        require(picture.image().isNull() && picture.imageFor(well).isNull());
        return;
    }
    // Larger ones are read as well, but the fuzzer tries more in the same time without them.
    constexpr qint64 mostPixels = 4'000'000;
    if (qint64(picture.size().width()) * picture.size().height() > mostPixels)
        return;
    const QImage image = picture.image();
    require(image.isNull() || image.size() == picture.size());
    const QImage shown = picture.imageFor(well);
    require(shown.width() <= picture.size().width() && shown.height() <= picture.size().height());
    const QByteArray jpeg = tomely::scaleAndSaveAsJPEGScaled(
        picture, well.width(), well.height(), /*scaleImage=*/true, defaults);
    const QSize size = tomely::scaledSize(picture.size(), well);
    require(jpeg.isNull() == (shown.isNull() || size.isEmpty()));
    require(jpeg.isNull() || tomely::Picture::fromEncoded(jpeg).size() == size);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const tomely::UserDefaults defaults(QStringLiteral("/nonexistent/Tomely.ini"));
    static const QtMessageHandler before = qInstallMessageHandler(silence);
    static_cast<void>(before);
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const tomely::Picture picture = tomely::Picture::fromEncoded(bytes);
    const tomely::Picture stored = tomely::Picture::fromStored(bytes);
    require(!picture.isValid() || picture.size() == stored.size());
    require(!picture.isValid() || !picture.imageFor(QSize(100, 100)).isNull());
    checkPicture(picture, defaults);
    checkPicture(stored, defaults);
    return 0;
}
