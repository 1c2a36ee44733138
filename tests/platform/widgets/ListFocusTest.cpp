// The selection of a list without the focus, in light, dark and high-contrast palettes.

#include "platform/widgets/ListFocus.h"

#include <QListWidget>
#include <QStyleOptionViewItem>
#include <QTest>

#include <algorithm>
#include <cmath>

namespace tomely {

namespace {

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    // As a list: of two temporaries std::minmax would give references.
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

class ListFocusTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void selectionWithoutFocusIsPaleAndEasyToRead_data();
    void selectionWithoutFocusIsPaleAndEasyToRead();
    void selectionWithFocusKeepsItsColours();
};

void ListFocusTest::selectionWithoutFocusIsPaleAndEasyToRead_data()
{
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("selection");
    QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black) << QColor(48, 140, 198);
    QTest::newRow("dark") << QColor(35, 38, 41) << QColor(252, 252, 252) << QColor(61, 174, 233);
    QTest::newRow("white on black") << QColor(Qt::black) << QColor(Qt::white) << QColor(Qt::yellow);
    QTest::newRow("black on white") << QColor(Qt::white) << QColor(Qt::black) << QColor(Qt::black);
}

void ListFocusTest::selectionWithoutFocusIsPaleAndEasyToRead()
{
    QFETCH(const QColor, ground);
    QFETCH(const QColor, text);
    QFETCH(const QColor, selection);
    QListWidget view;
    QPalette palette;
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Highlight, selection);
    view.setPalette(palette);
    QStyleOptionViewItem option;
    option.palette = palette;

    paleWithoutFocus(option, view);

    const QColor pale = option.palette.color(QPalette::Highlight);
    QVERIFY2(contrast(pale, option.palette.color(QPalette::HighlightedText)) >= 4.5,
        qPrintable(pale.name()));
    QVERIFY2(contrast(pale, ground) > 1.2, qPrintable(pale.name()));
    QVERIFY2(contrast(pale, selection) > 1.5, qPrintable(pale.name()));
}

void ListFocusTest::selectionWithFocusKeepsItsColours()
{
    QListWidget view;
    view.show();
    view.activateWindow();
    view.setFocus();
    QTRY_VERIFY(view.hasFocus());
    QStyleOptionViewItem option;
    option.palette = view.palette();

    paleWithoutFocus(option, view);

    QCOMPARE(option.palette, view.palette());
}

} // namespace tomely

QTEST_MAIN(tomely::ListFocusTest)
#include "ListFocusTest.moc"
