#include "listwindow/GroupTableModel.h"

#include "tests/support/SmallCollection.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QStringList namesOf(const GroupTableModel& model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row)
        names.append(model.index(row, GroupTableModel::NameColumn).data().toString());
    return names;
}

} // namespace

class GroupTableModelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void isAModel();
    void startsWithTheLibraryAlone();
    void listsTheGroupsByName();
    void keepsItsRowsUntilItIsPopulatedAgain();
    void findsGroupsByTheirKeys();
    void showsAPictureInFrontOfEachName();
    void saysEachRowToAScreenReader();
    void letsOnlyGroupNamesBeEdited();
    void asksForARenameOfTheEditedRow();

private:
    std::unique_ptr<BookListDocument> m_document;
    std::unique_ptr<GroupTableModel> m_model;
};

void GroupTableModelTest::init()
{
    m_model.reset();
    m_document = std::make_unique<BookListDocument>(); // 1 Fiction, 2 Non Fiction
    samples::addGroup(*m_document, u"atlases"_s); // 3
    samples::addGroup(*m_document, u"Éditions"_s); // 4
    samples::addGroup(*m_document, u"fiction"_s); // 5
    m_model = std::make_unique<GroupTableModel>(m_document->getGroups());
    m_model->populateGroups();
}

void GroupTableModelTest::isAModel()
{
    const QAbstractItemModelTester tester(
        m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_document->getGroups().remove(u"1"_s);
    m_model->populateGroups();
    samples::addGroup(*m_document, u"Zoology"_s);
    m_model->populateGroups();
}

void GroupTableModelTest::startsWithTheLibraryAlone()
{
    const GroupTableModel model(m_document->getGroups());
    QCOMPARE(namesOf(model), QStringList{u"Library"_s});
    QCOMPARE(model.groupKeyOfRow(0), 0);
    QVERIFY(model.groupKeyTextOfRow(0).isNull());
}

void GroupTableModelTest::listsTheGroupsByName()
{
    QCOMPARE(namesOf(*m_model),
        QStringList({u"Library"_s, u"atlases"_s, u"Fiction"_s, u"fiction"_s, u"Non Fiction"_s,
            u"Éditions"_s}));
}

void GroupTableModelTest::keepsItsRowsUntilItIsPopulatedAgain()
{
    QStringList expected = namesOf(*m_model);
    m_document->getGroups().find(u"3"_s)->setGroupName(u"Zoology"_s);
    m_document->getGroups().remove(u"2"_s);
    expected[1] = u"Zoology"_s; // a name is always the one that the group has
    QCOMPARE(namesOf(*m_model), expected);
    QCOMPARE(m_model->rowOfGroupKey(2), 4);
    m_model->populateGroups();
    QCOMPARE(namesOf(*m_model),
        QStringList({u"Library"_s, u"Fiction"_s, u"fiction"_s, u"Zoology"_s, u"Éditions"_s}));
}

void GroupTableModelTest::findsGroupsByTheirKeys()
{
    QCOMPARE(m_model->rowOfGroupKey(0), 0);
    QCOMPARE(m_model->rowOfGroupKey(3), 1);
    QCOMPARE(m_model->rowOfGroupKey(4), 5);
    QCOMPARE(m_model->rowOfGroupKey(99), -1);
    QCOMPARE(m_model->groupKeyOfRow(1), 3);
    QCOMPARE(m_model->groupKeyTextOfRow(1), u"3"_s);
    for (const int row : {-1, 6, 1000}) {
        QCOMPARE(m_model->groupKeyOfRow(row), 0);
        QVERIFY(m_model->groupKeyTextOfRow(row).isNull());
    }
    const auto keyAt = [this](int row) {
        return m_model->index(row, 0).data(GroupTableModel::KeyRole).toString();
    };
    QCOMPARE(keyAt(1), u"3"_s);
    QVERIFY(keyAt(0).isNull());
}

void GroupTableModelTest::showsAPictureInFrontOfEachName()
{
    const auto picture = [this](int row) {
        const QVariant icon =
            m_model->index(row, GroupTableModel::IconColumn).data(Qt::DecorationRole);
        return icon.value<QIcon>().pixmap(24, 24).toImage();
    };
    QVERIFY(!picture(0).isNull());
    QVERIFY(picture(0) != picture(1));
    QCOMPARE(picture(1), picture(2));
    QVERIFY(!m_model->index(1, GroupTableModel::IconColumn).data().isValid());
    QVERIFY(!m_model->index(1, GroupTableModel::NameColumn).data(Qt::DecorationRole).isValid());
}

void GroupTableModelTest::saysEachRowToAScreenReader()
{
    for (const int column : {GroupTableModel::IconColumn, GroupTableModel::NameColumn})
        QCOMPARE(m_model->index(1, column).data(Qt::AccessibleTextRole).toString(), u"atlases"_s);
}

void GroupTableModelTest::letsOnlyGroupNamesBeEdited()
{
    const auto isEditable = [this](int row, int column) {
        return m_model->index(row, column).flags().testFlag(Qt::ItemIsEditable);
    };
    QVERIFY(!isEditable(0, GroupTableModel::NameColumn));
    QVERIFY(!isEditable(0, GroupTableModel::IconColumn));
    QVERIFY(!isEditable(1, GroupTableModel::IconColumn));
    QVERIFY(isEditable(1, GroupTableModel::NameColumn));
    QCOMPARE(
        m_model->index(1, GroupTableModel::NameColumn).data(Qt::EditRole).toString(), u"atlases"_s);
}

void GroupTableModelTest::asksForARenameOfTheEditedRow()
{
    QSignalSpy requested(m_model.get(), &GroupTableModel::renameRequested);
    const auto set = [this](int row, int column, int role) {
        return m_model->setData(m_model->index(row, column), u"Maps"_s, role);
    };
    QVERIFY(!set(0, GroupTableModel::NameColumn, Qt::EditRole));
    QVERIFY(!set(1, GroupTableModel::IconColumn, Qt::EditRole));
    QVERIFY(!set(1, GroupTableModel::NameColumn, Qt::DisplayRole));
    QVERIFY(!m_model->setData({}, u"Maps"_s, Qt::EditRole));
    QVERIFY(requested.isEmpty());
    QVERIFY(set(1, GroupTableModel::NameColumn, Qt::EditRole));
    QCOMPARE(requested.size(), 1);
    QCOMPARE(requested.first().at(0).toString(), u"3"_s);
    QCOMPARE(requested.first().at(1).toString(), u"Maps"_s);
    QCOMPARE(m_document->getGroups().find(u"3"_s)->getGroupName(), u"atlases"_s);
}

QTEST_MAIN(GroupTableModelTest)
#include "GroupTableModelTest.moc"
