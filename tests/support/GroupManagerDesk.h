// The group manager open on a window of its own, over a document with three groups, and a person's
// hands for it.

#pragma once

#include "document/widgets/GroupManagerController.h"
#include "document/widgets/GroupManagerRows.h"
#include "tests/support/FakeBookListWindow.h"
#include "tests/support/SmallCollection.h"

#include <QLineEdit>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QtTest>

namespace tomely {

class GroupManagerDesk : public QObject {
protected:
    void setUp()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("view|edit|QObject")));
        m_document = std::make_unique<BookListDocument>(FakeBookListWindow::services(m_list));
        m_document->makeWindowControllers();
        samples::addFourBooks(*m_document); // 2 and 3 are in the group 1
        // 1 Fiction, 2 Non Fiction and
        samples::addGroup(*m_document, QStringLiteral("Poems")); // 3
        m_document->clearChangeCount();
        m_membership = {};
        m_membership.insert(QStringLiteral("2"));
        m_window = std::make_unique<QMainWindow>();
        m_window->resize(700, 500);
        m_window->show();
    }

    void takeDown()
    {
        m_window.reset();
        m_document.reset();
    }

    void open(bool withMembership = true)
    {
        m_dialog = new GroupManagerController(
            *m_window, *m_document, withMembership ? &m_membership : nullptr);
        if (!QTest::qWaitForWindowActive(m_dialog))
            qFatal("the dialog does not come up");
    }

    GroupNameTable& table() const { return *m_dialog->findChild<GroupNameTable*>(); }

    GroupManagerRows& rows() const { return *m_dialog->findChild<GroupManagerRows*>(); }

    QPushButton& button(const QString& name) const
    {
        return *m_dialog->findChild<QPushButton*>(name);
    }

    QPoint placeOf(int row, int column = GroupManagerRows::NameColumn) const
    {
        return table().visualRect(rows().index(row, column)).center();
    }

    void click(const QString& name) const
    {
        // Between press and release the program goes on, as it does for a hand.
        QPushButton& clicked = button(name);
        QTest::mousePress(&clicked, Qt::LeftButton);
        QCoreApplication::processEvents();
        QTest::mouseRelease(&clicked, Qt::LeftButton);
    }

    void clickRow(int row) const
    {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, placeOf(row));
    }

    QLineEdit* editor() const
    {
        for (auto* const edit : table().viewport()->findChildren<QLineEdit*>()) {
            if (edit->isVisible())
                return edit;
        }
        return nullptr;
    }

    void startRenaming(int row) const
    {
        clickRow(row);
        table().setFocus();
        QTest::keyClick(&table(), Qt::Key_F2);
        QVERIFY(editor());
    }

    void type(const QString& name) const
    {
        QVERIFY(editor());
        editor()->selectAll();
        QTest::keyClick(editor(), Qt::Key_Backspace);
        QTest::keyClicks(editor(), name);
    }

    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < rows().rowCount(); ++row)
            names.append(rows().index(row, GroupManagerRows::NameColumn).data().toString());
        return names;
    }

    QString selected() const { return rows().nameOfRow(table().selectedRow()); }

    QStringList documentNames() const
    {
        QStringList names;
        for (const auto& [key, group] : m_document->getGroups().byKey())
            names.append(key + u' ' + group.getGroupName());
        return names;
    }

    QStringList membership() const
    {
        QStringList keys;
        for (const auto& entry : m_membership)
            keys.append(entry.key + u'=' + entry.value);
        return keys;
    }

    QStringList groupsOf(const QString& bookKey) const
    {
        QStringList keys;
        for (const auto& entry : m_document->getBookEntry(bookKey)->getSelectedGroups())
            keys.append(entry.key);
        return keys;
    }

    FakeBookListWindow* m_list = nullptr;
    std::unique_ptr<BookListDocument> m_document;
    std::unique_ptr<QMainWindow> m_window;
    GroupMembership m_membership;
    QPointer<GroupManagerController> m_dialog;
};

} // namespace tomely
