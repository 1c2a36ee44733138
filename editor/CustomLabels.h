// The names of the custom fields as an editor shows them: labels that a double click, or F2 in the
// field they name, turns into a text to edit. They belong to the document, so a new name goes there
// at once and not with the book.

#pragma once

#include <QObject>

#include <vector>

class QWidget;

namespace tomely {

class BookListDocument;
class EditableLabel;

class CustomLabels : public QObject {
    Q_OBJECT

public:
    /// `window` has the 18 labels and the controls that they name. Both must outlive this.
    CustomLabels(QWidget& window, BookListDocument& document);

    /// Shows the document's labels; those of fields and dates with a colon.
    void initCustomLabels();

    /// Takes over a name that is being typed.
    void endEditing();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Row {
        EditableLabel* label;
        std::vector<QWidget*> controls; // that it names
        qint32 columnKey;
        bool hasColon;
    };

    void addRow(QWidget& window, const QString& name, const QStringList& controls, qint32 columnKey,
        bool hasColon);
    void editCustomLabel(const Row& row, const QString& text);

    BookListDocument& m_document;
    std::vector<Row> m_rows;
};

} // namespace tomely
