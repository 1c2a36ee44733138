// Turns the steps of look-ups on and keeps them, as long as it lives.

#pragma once

#include <QLoggingCategory>
#include <QStringList>

namespace tomely {

class LoggedSteps {
public:
    LoggedSteps()
    {
        kept().clear();
        QLoggingCategory::setFilterRules(QStringLiteral("tomely.lookup=true"));
        before() = qInstallMessageHandler(&LoggedSteps::keep);
    }

    ~LoggedSteps()
    {
        qInstallMessageHandler(before());
        QLoggingCategory::setFilterRules(QString());
    }

    Q_DISABLE_COPY_MOVE(LoggedSteps)

    /// In the order they came.
    static QStringList texts() { return kept(); }

private:
    static QStringList& kept()
    {
        static QStringList texts;
        return texts;
    }

    static QtMessageHandler& before()
    {
        static QtMessageHandler handler = nullptr;
        return handler;
    }

    static void keep(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (QLatin1StringView(context.category) == QLatin1StringView("tomely.lookup"))
            kept().append(text);
        else if (before())
            before()(type, context, text);
    }
};

} // namespace tomely
