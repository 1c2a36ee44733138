// A desk whose editors look books up in a server of the test.

#pragma once

#include "platform/widgets/Waiting.h"
#include "tests/editor/EditorDesk.h"
#include "tests/support/LookupScenes.h"
#include "tests/support/LookupServer.h"

#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace tomely {

class LookupDesk : public EditorDesk {
public:
    LookupDesk()
    {
        fetchPolicy = authority().policy();
        askServer(defaults, server);
        placeholderDigest = scenePlaceholderDigest();
    }

    /// One for all tests of the program: making it takes a moment.
    static const TestAuthority& authority()
    {
        static const TestAuthority authority;
        return authority;
    }

    /// The field of the ISBN, with the focus; only an active window's control can lose it.
    static QLineEdit& focusedISBN(const BookEntryWindowController& editor)
    {
        auto& field = find<QLineEdit>(editor, QStringLiteral("m_idISBN"));
        editor.window()->activateWindow();
        field.setFocus(Qt::MouseFocusReason);
        if (!QTest::qWaitFor([&field] { return field.hasFocus(); }))
            qFatal("the ISBN does not get the focus");
        return field;
    }

    /// Types an ISBN and goes on to the next control; what that starts has ended then, unless a
    /// test's own loop keeps it.
    static void typeISBN(const BookEntryWindowController& editor, const QString& isbn)
    {
        QLineEdit& field = focusedISBN(editor);
        field.selectAll();
        if (isbn.isEmpty())
            QTest::keyClick(&field, Qt::Key_Delete);
        else
            QTest::keyClicks(&field, isbn);
        leaveISBN(editor);
    }

    static void leaveISBN(const BookEntryWindowController& editor)
    {
        QTest::keyClick(&focusedISBN(editor), Qt::Key_Tab);
        QCoreApplication::processEvents();
    }

    /// Does something, once, while the program waits for the server's answer to a target.
    template <class Act>
    void whileWaitingFor(const QByteArray& target, Act act)
    {
        auto* const timer = new QTimer(&server);
        QObject::connect(timer, &QTimer::timeout, timer, [this, timer, target, act] {
            if (!Waiting::isWaiting() || !server.targets().contains(target))
                return;
            timer->stop();
            timer->deleteLater();
            act();
        });
        timer->start(1);
    }

    LookupServer server{authority().identityFor(QStringLiteral("localhost"))};
};

} // namespace tomely
