#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString guide = QStringLiteral(TOMELY_SOURCE_DIR "/docs/guide");
const QString made = QStringLiteral(MADE_PICTURES);

/// What the pages of the guide name, without the ending.
QStringList namesInPages()
{
    static const QRegularExpression picture(u"\\]\\(pictures/([a-z0-9-]+)\\.png\\)"_s);
    QSet<QString> names;
    const QDir pages(guide);
    for (const QString& page : pages.entryList({u"*.md"_s})) {
        QFile file(pages.filePath(page));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s cannot be read", qPrintable(page));
        const QString text = QString::fromUtf8(file.readAll());
        for (const QRegularExpressionMatch& match : picture.globalMatch(text))
            names.insert(match.captured(1));
    }
    QStringList sorted(names.begin(), names.end());
    sorted.sort();
    return sorted;
}

QStringList copiesOf(const QString& name)
{
    return {name + ".png"_L1, name + "-2x.png"_L1, name + "-dark.png"_L1, name + "-dark-2x.png"_L1};
}

QSet<QString> allCopies()
{
    QSet<QString> copies;
    for (const QString& name : namesInPages()) {
        for (const QString& copy : copiesOf(name))
            copies.insert(copy);
    }
    return copies;
}

QSet<QString> picturesIn(const QString& folder)
{
    const QStringList files = QDir(folder).entryList(QDir::Files);
    return {files.begin(), files.end()};
}

/// How many of its points have the colour that most of them have, of 100.
int shareOfOneColor(const QImage& picture)
{
    QHash<QRgb, qsizetype> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    }
    const qsizetype most = *std::max_element(counts.cbegin(), counts.cend());
    const qsizetype all = qsizetype{picture.width()} * picture.height();
    return static_cast<int>(100 * most / all);
}

/// 0 is black and 255 white, of the ground of the window: its corner shows it in every one.
int brightness(const QImage& picture)
{
    return qGray(picture.pixel(2, picture.height() - 3));
}

} // namespace

// The pictures of the guide come out of the program as it is, and the guide has one of each window
// for each desktop.
class GuidePictures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void makesEachPictureOfTheGuide();

    void picturesShowSomething_data() { addNames(); }

    void picturesShowSomething();

    void picturesFitTheScale_data() { addNames(); }

    void picturesFitTheScale();

    void picturesFollowTheDesktop_data() { addNames(); }

    void picturesFollowTheDesktop();
    void theGuideHasAllCopies();

private:
    static void addNames();
};

void GuidePictures::initTestCase()
{
    QDir(made).removeRecursively();
    QVERIFY(QDir().mkpath(made));
    for (const QString& look : {u"light"_s, u"dark"_s}) {
        for (const QString& scale : {u"1"_s, u"2"_s}) {
            QCOMPARE(
                QProcess::execute(QStringLiteral(MAKE_GUIDE_PICTURES), {made, look, scale}), 0);
        }
    }
}

void GuidePictures::addNames()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : namesInPages())
        QTest::newRow(qPrintable(name)) << name;
}

void GuidePictures::makesEachPictureOfTheGuide()
{
    QCOMPARE(picturesIn(made), allCopies());
}

void GuidePictures::picturesShowSomething()
{
    QFETCH(QString, name);
    for (const QString& copy : copiesOf(name)) {
        const QImage picture(made + u'/' + copy);
        QVERIFY2(!picture.isNull(), qPrintable(copy));
        QVERIFY2(shareOfOneColor(picture) < 97, qPrintable(copy));
    }
}

void GuidePictures::picturesFitTheScale()
{
    QFETCH(QString, name);
    const QStringList copies = copiesOf(name);
    const QSize size = QImage(made + u'/' + copies[0]).size();
    QCOMPARE(QImage(made + u'/' + copies[1]).size(), size * 2);
    QCOMPARE(QImage(made + u'/' + copies[2]).size(), size);
    QCOMPARE(QImage(made + u'/' + copies[3]).size(), size * 2);
}

void GuidePictures::picturesFollowTheDesktop()
{
    QFETCH(QString, name);
    const QStringList copies = copiesOf(name);
    QVERIFY(brightness(QImage(made + u'/' + copies[0])) > 150);
    QVERIFY(brightness(QImage(made + u'/' + copies[2])) < 100);
}

void GuidePictures::theGuideHasAllCopies()
{
    QCOMPARE(picturesIn(guide + "/pictures"_L1), allCopies());
}

QTEST_GUILESS_MAIN(GuidePictures)
#include "GuidePictures.moc"
