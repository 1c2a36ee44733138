#include "bench/LibraryGenerator.h"

#include "document/BookListDocument.h"

#include <QBuffer>
#include <QImage>

#include <array>
#include <random>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr std::array words = {"silent"_L1, "river"_L1, "glass"_L1, "garden"_L1, "winter"_L1,
    "house"_L1, "letters"_L1, "shadow"_L1, "history"_L1, "island"_L1, "night"_L1, "daughter"_L1,
    "empire"_L1, "stone"_L1, "summer"_L1, "road"_L1, "memory"_L1, "mountain"_L1, "bird"_L1,
    "secret"_L1, "ocean"_L1, "fire"_L1, "clock"_L1, "mirror"_L1, "king"_L1, "forest"_L1,
    "journey"_L1, "machine"_L1, "song"_L1, "bridge"_L1, "city"_L1, "light"_L1};
constexpr std::array firstNames = {"Anna"_L1, "Henrik"_L1, "Maria"_L1, "Tom"_L1, "Ingrid"_L1,
    "José"_L1, "Olga"_L1, "Peter"_L1, "Zoë"_L1, "Ravi"_L1, "Léa"_L1, "Mark"_L1, "Irene"_L1,
    "Samuel"_L1, "Yuki"_L1, "Nadia"_L1};
constexpr std::array syllables = {"ber"_L1, "lin"_L1, "mar"_L1, "ton"_L1, "sen"_L1, "hol"_L1,
    "vik"_L1, "wald"_L1, "rice"_L1, "mont"_L1, "ard"_L1, "ley"_L1};
constexpr std::array places = {"Living room, shelf 1"_L1, "Living room, shelf 2"_L1, "Study"_L1,
    "Bedroom"_L1, "Hall"_L1, "Attic, box 3"_L1, "Office"_L1};
constexpr std::array shops = {"Corner Bookshop"_L1, "Market stall"_L1, "Gift"_L1, "Online"_L1,
    "Library sale"_L1, "Station kiosk"_L1};

/// Random choices that are the same everywhere; the standard's distributions are not.
class Choices {
public:
    explicit Choices(quint64 seed) : m_engine(seed) { }

    int below(int limit) { return static_cast<int>(m_engine() % static_cast<quint64>(limit)); }

    bool oneIn(int count) { return below(count) == 0; }

    template <class Texts>
    QString oneOf(const Texts& texts)
    {
        return texts.at(static_cast<std::size_t>(below(static_cast<int>(texts.size()))));
    }

private:
    std::mt19937_64 m_engine;
};

QString capitalized(const QString& word)
{
    return word.left(1).toUpper() + word.mid(1);
}

QString makeSentence(Choices& choices, int length)
{
    QString sentence = capitalized(choices.oneOf(words));
    for (int word = 1; word < length; ++word)
        sentence += u' ' + choices.oneOf(words);
    return sentence;
}

QString makeTitle(Choices& choices)
{
    QString title = choices.oneIn(3) ? u"The "_s : QString();
    const int length = 2 + choices.below(4);
    for (int word = 0; word < length; ++word)
        title += (word == 0 ? QString() : u" "_s) + capitalized(choices.oneOf(words));
    return title;
}

QString makeSurname(Choices& choices)
{
    return capitalized(choices.oneOf(syllables) + choices.oneOf(syllables));
}

/// The author of a number: authors repeat, but there are more of them in a larger library.
QString authorOf(int number)
{
    Choices choices(static_cast<quint64>(number) + 77);
    return choices.oneOf(firstNames) + u' ' + makeSurname(choices) + makeSurname(choices).toLower();
}

QString makeIsbn(Choices& choices)
{
    QString isbn = u"978"_s;
    int sum = 9 + 3 * 7 + 8;
    for (int place = 3; place < 12; ++place) {
        const int digit = choices.below(10);
        sum += place % 2 == 0 ? digit : 3 * digit;
        isbn += QString::number(digit);
    }
    return isbn + QString::number((10 - sum % 10) % 10);
}

QByteArray makePicture(Choices& choices)
{
    QImage image(218, 313, QImage::Format_RGB32);
    const QColor from = QColor::fromHsv(choices.below(360), 150, 200);
    for (int y = 0; y < image.height(); ++y) {
        const QRgb line = from.darker(100 + y / 3).rgb();
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, line);
    }
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG", 70);
    return jpeg;
}

QString yearBetween(Choices& choices, int first, int last)
{
    return QString::number(first + choices.below(last - first + 1));
}

std::unique_ptr<BookEntry> makeBook(Choices& choices, int authorCount)
{
    auto book = std::make_unique<BookEntry>();
    book->setTitle(makeTitle(choices));
    book->setAuthor(authorOf(choices.below(authorCount)));
    book->setPublisher(authorOf(-choices.below(300)).section(u' ', 1) + " Press"_L1);
    book->setISBN(makeIsbn(choices));
    book->setPages(80 + choices.below(900));
    book->setType(choices.below(4));
    book->setRating(choices.below(6));
    book->setPricePaid(choices.below(4000) / 100.0);
    book->setPricePaidFrom(choices.oneOf(shops));
    book->setEstValue(choices.below(6000) / 100.0);
    book->setLocation(choices.oneOf(places));
    book->setMonthPublished(choices.below(13));
    book->setYearPublished(yearBetween(choices, 1900, 2025));
    book->setYearCopyright(yearBetween(choices, 1850, 2025));
    book->setMonthPurchased(1 + choices.below(12));
    book->setYearPurchased(yearBetween(choices, 1990, 2025));
    if (choices.oneIn(2))
        book->setYearLastRead(yearBetween(choices, 1995, 2025));
    book->setOwn(!choices.oneIn(20));
    book->setRead(choices.oneIn(2));
    book->setFirstEdition(choices.oneIn(30));
    book->setNotes(makeSentence(choices, 5 + choices.below(28)));
    book->addToGroup(choices.oneIn(3) ? u"2"_s : u"1"_s);
    return book;
}

} // namespace

void generateLibrary(BookListDocument& document, const LibraryShape& shape)
{
    Choices choices(shape.seed);
    const int authorCount = shape.books / 5 + 10;
    for (int number = 0; number < shape.books; ++number) {
        std::unique_ptr<BookEntry> book = makeBook(choices, authorCount);
        const auto picturesBefore = qint64(shape.pictures) * number / shape.books;
        if (qint64(shape.pictures) * (number + 1) / shape.books > picturesBefore)
            book->setImageData(1, makePicture(choices));
        document.addBook(std::move(book));
    }
}

} // namespace tomely
