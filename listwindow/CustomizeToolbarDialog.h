// The sheet in which a person arranges the toolbar: all items there are, and the toolbar as a row
// into which they are dragged, or put by keyboard. Every change takes effect at once, so there is
// nothing to confirm or lose.

#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class CustomizeToolbarDialog;
}

namespace tomely {

class ToolbarConfiguration;
class ToolbarRowModel;

class CustomizeToolbarDialog : public QDialog {
    Q_OBJECT

public:
    /// The configuration must outlive the dialog, which deletes itself when it is closed. Show it
    /// with open().
    CustomizeToolbarDialog(ToolbarConfiguration& configuration, QWidget* parent);
    ~CustomizeToolbarDialog() override;

protected:
    // What is dragged out of the row and dropped anywhere in the dialog is removed.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void setUpViews();
    void connectControls();
    void showDisplay();
    void updateButtons();
    void addItem();
    void removeItem();
    void moveItem(int by);

    /// The item that is selected among all; empty when none is.
    QString chosenIdentifier() const;

    /// The place of the selected item in the row; -1 when none is selected.
    int selectedPlace() const;

    ToolbarConfiguration& m_configuration;
    std::unique_ptr<Ui::CustomizeToolbarDialog> m_ui;
    ToolbarRowModel* m_rowModel; // owned as a child
};

} // namespace tomely
