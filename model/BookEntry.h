// One book of the catalogue: its descriptive fields, purchase and loan data, dates, custom fields,
// pictures and the groups it is in. It knows its own values and nothing of collections or windows.

#pragma once

#include "model/GroupMembership.h"

#include <QByteArray>
#include <QImage>
#include <QString>

#include <array>
#include <optional>

namespace tomely {

class Archiver;
class BookXmlNode;
class Picture;
class Unarchiver;
class UserDefaults;
struct BookFieldTable;

class BookEntry {
public:
    /// Pictures are numbered 1 to ImageCount.
    static constexpr int ImageCount = 5;

    // A text getter answers the empty string for an absent text. Months are 0 (none) or 1 to 12;
    // years are free text. Prices are plain numbers in whatever currency the person thinks in.

    /// The book's number in its collection as text; null until a collection gave it one.
    QString getKey() const { return m_strBookKey; }

    void setKey(qint32 number);

    /// Takes a key text as a file holds it.
    void setKeyText(const QString& key) { change(m_strBookKey, key); }

    // These three are trimmed of spaces, tabs and line ends when they are set.
    QString getTitle() const { return present(m_strTitle); }

    void setTitle(const QString& value);

    QString getAuthor() const { return present(m_strAuthor); }

    void setAuthor(const QString& value);

    QString getNotes() const { return present(m_strNotes); }

    void setNotes(const QString& value);

    /// 0 Hardcover, 1 Paperback, 2 Audio Book, 3 eBook; 4 stands for an empty type text.
    qint32 getType() const { return m_iType; }

    void setType(qint32 value) { change(m_iType, value); }

    qint32 getRating() const { return m_iRating; }

    void setRating(qint32 value) { change(m_iRating, value); }

    qint32 getPages() const { return m_nPages; }

    void setPages(qint32 value) { change(m_nPages, value); }

    double getPricePaid() const { return m_dblPricePaid; }

    void setPricePaid(double value) { change(m_dblPricePaid, value); }

    double getEstValue() const { return m_dblEstValue; }

    void setEstValue(double value) { change(m_dblEstValue, value); }

    bool own() const { return m_bOwn; }

    void setOwn(bool value) { change(m_bOwn, value); }

    bool isSigned() const { return m_bSigned; }

    void setSigned(bool value) { change(m_bSigned, value); }

    bool isFirstEdition() const { return m_bFirstEdition; }

    void setFirstEdition(bool value) { change(m_bFirstEdition, value); }

    bool haveRead() const { return m_bRead; }

    void setRead(bool value) { change(m_bRead, value); }

    QString getPricePaidFrom() const { return present(m_strPricePaidFrom); }

    void setPricePaidFrom(const QString& value) { change(m_strPricePaidFrom, value); }

    QString getPublisher() const { return present(m_strPublisher); }

    void setPublisher(const QString& value) { change(m_strPublisher, value); }

    QString getISBN() const { return present(m_strISBN); }

    void setISBN(const QString& value) { change(m_strISBN, value); }

    QString getLocation() const { return present(m_strLocation); }

    void setLocation(const QString& value) { change(m_strLocation, value); }

    QString getLentTo() const { return present(m_strLentTo); }

    void setLentTo(const QString& value) { change(m_strLentTo, value); }

    qint32 getMonthPublished() const { return m_iMonthPublished; }

    void setMonthPublished(qint32 value) { change(m_iMonthPublished, value); }

    QString getYearPublished() const { return present(m_strYearPublished); }

    void setYearPublished(const QString& value) { change(m_strYearPublished, value); }

    qint32 getMonthEstValue() const { return m_iMonthEstValue; }

    void setMonthEstValue(qint32 value) { change(m_iMonthEstValue, value); }

    QString getYearEstValue() const { return present(m_strYearEstValue); }

    void setYearEstValue(const QString& value) { change(m_strYearEstValue, value); }

    qint32 getMonthLent() const { return m_iMonthLent; }

    void setMonthLent(qint32 value) { change(m_iMonthLent, value); }

    QString getYearLent() const { return present(m_strYearLent); }

    void setYearLent(const QString& value) { change(m_strYearLent, value); }

    qint32 getMonthPurchased() const { return m_iMonthPurchased; }

    void setMonthPurchased(qint32 value) { change(m_iMonthPurchased, value); }

    QString getYearPurchased() const { return present(m_strYearPurchased); }

    void setYearPurchased(const QString& value) { change(m_strYearPurchased, value); }

    qint32 getMonthFirstRead() const { return m_iMonthFirstRead; }

    void setMonthFirstRead(qint32 value) { change(m_iMonthFirstRead, value); }

    QString getYearFirstRead() const { return present(m_strYearFirstRead); }

    void setYearFirstRead(const QString& value) { change(m_strYearFirstRead, value); }

    qint32 getMonthLastRead() const { return m_iMonthLastRead; }

    void setMonthLastRead(qint32 value) { change(m_iMonthLastRead, value); }

    QString getYearLastRead() const { return present(m_strYearLastRead); }

    void setYearLastRead(const QString& value) { change(m_strYearLastRead, value); }

    qint32 getMonthCopyright() const { return m_iMonthCopyright; }

    void setMonthCopyright(qint32 value) { change(m_iMonthCopyright, value); }

    QString getYearCopyright() const { return present(m_strYearCopyright); }

    void setYearCopyright(const QString& value) { change(m_strYearCopyright, value); }

    QString getCustomField1() const { return present(m_strCustomField1); }

    void setCustomField1(const QString& value) { change(m_strCustomField1, value); }

    QString getCustomField2() const { return present(m_strCustomField2); }

    void setCustomField2(const QString& value) { change(m_strCustomField2, value); }

    QString getCustomField3() const { return present(m_strCustomField3); }

    void setCustomField3(const QString& value) { change(m_strCustomField3, value); }

    QString getCustomField4() const { return present(m_strCustomField4); }

    void setCustomField4(const QString& value) { change(m_strCustomField4, value); }

    QString getCustomField5() const { return present(m_strCustomField5); }

    void setCustomField5(const QString& value) { change(m_strCustomField5, value); }

    QString getCustomField6() const { return present(m_strCustomField6); }

    void setCustomField6(const QString& value) { change(m_strCustomField6, value); }

    QString getCustomField7() const { return present(m_strCustomField7); }

    void setCustomField7(const QString& value) { change(m_strCustomField7, value); }

    qint32 getCustomMonth1() const { return m_iCustomMonth1; }

    void setCustomMonth1(qint32 value) { change(m_iCustomMonth1, value); }

    QString getCustomYear1() const { return present(m_strCustomYear1); }

    void setCustomYear1(const QString& value) { change(m_strCustomYear1, value); }

    qint32 getCustomMonth2() const { return m_iCustomMonth2; }

    void setCustomMonth2(qint32 value) { change(m_iCustomMonth2, value); }

    QString getCustomYear2() const { return present(m_strCustomYear2); }

    void setCustomYear2(const QString& value) { change(m_strCustomYear2, value); }

    qint32 getCustomMonth3() const { return m_iCustomMonth3; }

    void setCustomMonth3(qint32 value) { change(m_iCustomMonth3, value); }

    QString getCustomYear3() const { return present(m_strCustomYear3); }

    void setCustomYear3(const QString& value) { change(m_strCustomYear3, value); }

    bool isCustomSwitch1() const { return m_bCustomSwitch1; }

    void setCustomSwitch1(bool value) { change(m_bCustomSwitch1, value); }

    bool isCustomSwitch2() const { return m_bCustomSwitch2; }

    void setCustomSwitch2(bool value) { change(m_bCustomSwitch2, value); }

    bool isCustomSwitch3() const { return m_bCustomSwitch3; }

    void setCustomSwitch3(bool value) { change(m_bCustomSwitch3, value); }

    bool isCustomSwitch4() const { return m_bCustomSwitch4; }

    void setCustomSwitch4(bool value) { change(m_bCustomSwitch4, value); }

    bool isCustomSwitch5() const { return m_bCustomSwitch5; }

    void setCustomSwitch5(bool value) { change(m_bCustomSwitch5, value); }

    bool isCustomSwitch6() const { return m_bCustomSwitch6; }

    void setCustomSwitch6(bool value) { change(m_bCustomSwitch6, value); }

    bool isCustomSwitch7() const { return m_bCustomSwitch7; }

    void setCustomSwitch7(bool value) { change(m_bCustomSwitch7, value); }

    bool isCustomSwitch8() const { return m_bCustomSwitch8; }

    void setCustomSwitch8(bool value) { change(m_bCustomSwitch8, value); }

    /// The name of the book's type, empty for a number above 3 or below 0.
    QString getTypeText() const { return typeText(m_iType); }

    /// The same for any type number.
    static QString typeText(qint32 type);

    /// The number of a type's name, whatever its letter case: 4 for the empty text, 1 for a name
    /// that is none of the four.
    static qint32 getTypeNum(QStringView text);

    /// The groups that the book is in.
    const GroupMembership& getSelectedGroups() const { return m_dSelectedGroups; }

    void setSelectedGroups(GroupMembership groups);

    /// Puts the book into a group; being in it already is fine.
    void addToGroup(const QString& groupKey);

    /// Takes the book out of every group but those for which `isKept` holds of the key text.
    template <class IsKept>
    void keepGroupsIf(IsKept isKept)
    {
        m_dSelectedGroups.keepIf(isKept);
        m_changeStamp.tick();
    }

    /// Takes the book out of a group; false when it was not in.
    bool removeFromGroup(QStringView groupKey);

    /// True for group 0, which is the whole library, and for every group that the book is in.
    bool inGroup(qint32 groupKey) const
    {
        return groupKey == 0 || m_dSelectedGroups.contains(groupKey);
    }

    bool inAnyGroup() const { return !m_dSelectedGroups.isEmpty(); }

    /// The stored JPEG bytes of picture `slot` (1 to ImageCount); null when there is none.
    QByteArray getImageData(int slot) const { return m_images.at(imageIndex(slot)); }

    /// Stores JPEG bytes as they are; null clears the slot.
    void setImageData(int slot, const QByteArray& jpeg);

    /// Stores a picture as the person's preferences want it (see scaleAndSaveAsJPEG). A picture
    /// that is not valid or cannot be stored clears the slot.
    void setImage(int slot, const Picture& picture, const UserDefaults& defaults);

    void setImage1(const Picture& picture, const UserDefaults& defaults)
    {
        setImage(1, picture, defaults);
    }

    void setImage2(const Picture& picture, const UserDefaults& defaults)
    {
        setImage(2, picture, defaults);
    }

    void setImage3(const Picture& picture, const UserDefaults& defaults)
    {
        setImage(3, picture, defaults);
    }

    void setImage4(const Picture& picture, const UserDefaults& defaults)
    {
        setImage(4, picture, defaults);
    }

    void setImage5(const Picture& picture, const UserDefaults& defaults)
    {
        setImage(5, picture, defaults);
    }

    /// Scales every picture down that is larger than its slot's bound, whatever the preferences say
    /// of new ones, and answers how many it replaced. Those that fit or cannot be decoded stay as
    /// they are, byte for byte; one that cannot be stored is gone, as with setImage.
    int scaleEachImage(const UserDefaults& defaults);

    /// The stored picture, of which nothing is decoded yet; not valid when the slot is empty or
    /// holds something else.
    Picture getPicture(int slot) const;

    /// A freshly decoded picture; a null image when the slot is empty or cannot be decoded.
    QImage getImage(int slot) const;

    QImage getImage1() const { return getImage(1); }

    QImage getImage2() const { return getImage(2); }

    QImage getImage3() const { return getImage(3); }

    QImage getImage4() const { return getImage(4); }

    QImage getImage5() const { return getImage(5); }

    bool hasImages() const;

    /// The picture of the first filled slot in the order 1 to 5; a null image when all are empty.
    QImage getFirstImage() const;

    /// Writes the record into a collection's archive, always in the current layout.
    void encodeWithCoder(Archiver& archiver) const;

    /// Reads a record of an archive of the given file version (see model/BookArchive.cpp for what
    /// each version carries). Throws ArchiveError on damage.
    static BookEntry initWithCoder(Unarchiver& unarchiver, qint32 archiveVersion);

    /// The book's element of the XML interchange file, from its indentation to its last line end.
    QString xmlEncode() const;

    /// Fills a fresh record from a book's element. Texts that the element has not exactly once
    /// become empty, a missing type becomes 4; numbers and flags stay as they are, as do the key,
    /// the groups and the pictures.
    void initFromXMLNode(const BookXmlNode& node);

    /// When this book last changed, on a clock that ticks once for every change of any book of the
    /// program. Lists compare it with lastChange() to find what they must look at again.
    quint64 changeStamp() const { return m_changeStamp.value(); }

    /// The tick of the newest change of any book.
    static quint64 lastChange() { return s_lastChange; }

    /// Lets the clock tick for a change that no single book shows, such as a book's removal.
    static void noteChange() { ++s_lastChange; }

private:
    friend struct BookFieldTable;

    /// Counts from 0; an impossible slot is the caller's mistake and throws std::out_of_range.
    static std::size_t imageIndex(int slot) { return static_cast<std::size_t>(slot - 1); }

    static QString present(const QString& text);

    template <class Value>
    void change(Value& field, const Value& value)
    {
        field = value;
        m_changeStamp.tick();
    }

    /// A book that takes over another one's values changes, so a copied stamp is a new one.
    class ChangeStamp {
    public:
        ChangeStamp() noexcept = default;

        ChangeStamp(const ChangeStamp&) noexcept { }

        ChangeStamp& operator=(const ChangeStamp&) noexcept
        {
            tick();
            return *this;
        }

        ~ChangeStamp() = default;

        void tick() noexcept { m_value = ++s_lastChange; }

        quint64 value() const noexcept { return m_value; }

    private:
        quint64 m_value = ++s_lastChange;
    };

    QString m_strBookKey;
    QString m_strTitle;
    QString m_strAuthor;
    QString m_strNotes;
    qint32 m_iType = 0;
    qint32 m_iRating = 0;
    double m_dblPricePaid = 0;
    QString m_strPricePaidFrom;
    QString m_strPublisher;
    QString m_strISBN;
    qint32 m_nPages = 0;
    double m_dblEstValue = 0;
    QString m_strLocation;
    QString m_strLentTo;
    qint32 m_iMonthPublished = 0;
    qint32 m_iMonthEstValue = 0;
    qint32 m_iMonthLent = 0;
    qint32 m_iMonthPurchased = 0;
    qint32 m_iMonthFirstRead = 0;
    qint32 m_iMonthLastRead = 0;
    qint32 m_iMonthCopyright = 0;
    QString m_strYearPublished;
    QString m_strYearEstValue;
    QString m_strYearLent;
    QString m_strYearPurchased;
    QString m_strYearFirstRead;
    QString m_strYearLastRead;
    QString m_strYearCopyright;
    QString m_strCustomField1;
    QString m_strCustomField2;
    QString m_strCustomField3;
    QString m_strCustomField4;
    QString m_strCustomField5;
    QString m_strCustomField6;
    QString m_strCustomField7;
    QString m_strCustomYear1;
    QString m_strCustomYear2;
    QString m_strCustomYear3;
    qint32 m_iCustomMonth1 = 0;
    qint32 m_iCustomMonth2 = 0;
    qint32 m_iCustomMonth3 = 0;
    bool m_bCustomSwitch1 = false;
    bool m_bCustomSwitch2 = false;
    bool m_bCustomSwitch3 = false;
    bool m_bCustomSwitch4 = false;
    bool m_bCustomSwitch5 = false;
    bool m_bCustomSwitch6 = false;
    bool m_bCustomSwitch7 = false;
    bool m_bCustomSwitch8 = false;
    bool m_bOwn = false;
    bool m_bSigned = false;
    bool m_bFirstEdition = false;
    bool m_bRead = false;
    GroupMembership m_dSelectedGroups;
    std::array<QByteArray, ImageCount> m_images; // m_image1 to m_image5, as JPEG bytes
    ChangeStamp m_changeStamp;

    static inline quint64 s_lastChange = 0;
};

} // namespace tomely
