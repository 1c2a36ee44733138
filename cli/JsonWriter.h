// Writes JSON as it comes, members in the order of the calls, which the toolkit's own classes do
// not keep. Its caller sees to it that each begin has its end and each member one value.

#pragma once

#include "cli/Output.h"

#include <QString>

#include <vector>

namespace tomely {

class JsonWriter {
public:
    /// How the parts of an object or array stand: side by side, or each on a line of its own.
    enum class Layout { SideBySide, Lines };

    explicit JsonWriter(Output& output) : m_output(output) { }

    void beginObject(Layout layout = Layout::SideBySide) { begin("{", "}", layout); }

    void endObject() { end(); }

    void beginArray(Layout layout = Layout::SideBySide) { begin("[", "]", layout); }

    void endArray() { end(); }

    /// The name of the member whose value comes next.
    void name(QStringView memberName);
    void name(QLatin1StringView memberName); // ASCII alone

    /// A null text is null, an empty one is "".
    void text(const QString& characters);

    void text(QLatin1StringView characters); // ASCII alone

    void integer(qint64 number);

    /// The shortest form that reads back exactly; "nan", "inf" or "-inf" where JSON has no number.
    void real(double number);

    void boolean(bool isTrue);
    void null();

private:
    struct Level {
        QByteArrayView closing;
        Layout layout = Layout::SideBySide;
        bool isEmpty = true;
    };

    void begin(QByteArrayView opening, QByteArrayView closing, Layout layout);
    void end();
    void beginPart();
    void beginLine();
    void value(QByteArrayView json);
    void string(QByteArrayView utf8);
    void nameInUtf8(QByteArrayView utf8);

    Output& m_output;
    std::vector<Level> m_levels;
    int m_depth = 0; // of the levels laid out in lines
    bool m_afterName = false;
};

} // namespace tomely
