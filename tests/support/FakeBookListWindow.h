// The main window of a collection without a window: it records what its document tells it.

#pragma once

#include "document/BookListDocument.h"
#include "document/BookListWindow.h"
#include "platform/DocumentWindow.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

namespace tomely {

class FakeBookListWindow : public DocumentWindow, public BookListWindow {
public:
    /// What a document needs to make a window of this kind; `made` is set when it does.
    static BookListServices services(FakeBookListWindow*& made, BookListServices others = {})
    {
        others.makeWindow = [&made](BookListDocument& document) {
            auto window = std::make_unique<FakeBookListWindow>();
            made = window.get();
            document.addWindowController(std::move(window));
            return made;
        };
        return others;
    }

    FakeBookListWindow() { setVisible(true); }

    /// As a widget's property says it.
    void setVisible(bool visible) { m_windowObject.setProperty("visible", visible); }

    void showWindow() override { calls.append(QStringLiteral("showWindow")); }

    void bringToFront() override { calls.append(QStringLiteral("bringToFront")); }

    QObject* windowObject() override { return &m_windowObject; }

    void refresh() override { note(QStringLiteral("refresh")); }

    void setBooksChanged() override { note(QStringLiteral("setBooksChanged")); }

    void groupsChanged() override { note(QStringLiteral("groupsChanged")); }

    void columnsSelectionChanged() override { note(QStringLiteral("columnsSelectionChanged")); }

    void updateColumnName(const ColumnEntry& column) override
    {
        note(QStringLiteral("updateColumnName ") + column.getKey() + u' ' + column.getColumnName());
    }

    void initFilterDropDown() override { note(QStringLiteral("initFilterDropDown")); }

    void updateCurrentColumnInfo() override { note(QStringLiteral("updateCurrentColumnInfo")); }

    WindowLayout currentLayout() override
    {
        note(QStringLiteral("currentLayout"));
        return layout;
    }

    void printDocument() override { note(QStringLiteral("printDocument")); }

    void addNewBook(QRect frame) override
    {
        addedFrame = frame;
        note(QStringLiteral("addNewBook"));
    }

    void endGroupNameEditting() override { note(QStringLiteral("endGroupNameEditting")); }

    /// What was told, in order.
    QStringList calls;
    /// Called with each of them as it comes.
    std::function<void(const QString& call)> onCall;
    WindowLayout layout;
    QRect addedFrame; // of the last addNewBook

private:
    void note(const QString& call)
    {
        calls.append(call);
        if (onCall)
            onCall(call);
    }

    QObject m_windowObject;
};

} // namespace tomely
