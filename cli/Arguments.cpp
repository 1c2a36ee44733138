#include "cli/Arguments.h"

#include "cli/Failures.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

class ArgumentParser {
public:
    ArgumentParser(const QStringList& texts, std::span<const OptionGroup> known)
        : m_texts(texts)
        , m_known(known)
    {
    }

    Arguments parse()
    {
        while (m_next < m_texts.size()) {
            const QString text = m_texts[m_next++];
            if (text == "--"_L1 && !m_optionsEnded)
                m_optionsEnded = true;
            else if (text.startsWith(u'-') && text.size() > 1 && !m_optionsEnded)
                takeOption(text);
            else
                m_arguments.operands.append(text);
        }
        if (m_error && m_arguments.request == Arguments::Request::None)
            throw UsageError{*m_error};
        return std::move(m_arguments);
    }

private:
    void takeOption(const QString& text)
    {
        const qsizetype equals = text.indexOf(u'=');
        const QString name = equals < 0 ? text : text.first(equals);
        if (equals < 0 && takeRequest(name))
            return;
        const Option* const option = findOption(name);
        if (!option) {
            note(u"unknown option "_s + name);
            return;
        }
        const bool takesValue = !option->valueName.isEmpty();
        if (m_arguments.values.contains(name)) {
            note(name + " is given twice"_L1);
            m_next += takesValue && equals < 0 ? 1 : 0; // what follows is still its value
        } else if (!takesValue) {
            m_arguments.values[name] = u""_s;
            if (equals >= 0)
                note(name + " takes no value"_L1);
        } else if (equals >= 0) {
            m_arguments.values[name] = text.sliced(equals + 1);
        } else if (m_next < m_texts.size()) {
            m_arguments.values[name] = m_texts[m_next++];
        } else {
            note(name + " needs a value"_L1);
        }
    }

    bool takeRequest(const QString& name)
    {
        if (name != "--help"_L1 && name != "--version"_L1)
            return false;
        if (m_arguments.request == Arguments::Request::None)
            m_arguments.request =
                name == "--help"_L1 ? Arguments::Request::Help : Arguments::Request::Version;
        return true;
    }

    /// nullptr when there is no such option.
    const Option* findOption(const QString& name) const
    {
        for (const OptionGroup& group : m_known) {
            const auto place = std::ranges::find(group.options, name, &Option::name);
            if (place != group.options.end())
                return &*place;
        }
        return nullptr;
    }

    /// The first mistake is the one to tell, but a request for help further on still counts.
    void note(const QString& error)
    {
        if (!m_error)
            m_error = error;
    }

    const QStringList& m_texts;
    std::span<const OptionGroup> m_known;
    qsizetype m_next = 0;
    bool m_optionsEnded = false;
    Arguments m_arguments;
    std::optional<QString> m_error;
};

} // namespace

std::optional<QString> Arguments::value(QLatin1StringView option) const
{
    const auto place = values.find(option);
    return place == values.end() ? std::nullopt : std::optional(place->second);
}

Arguments parseArguments(const QStringList& texts, std::span<const OptionGroup> known)
{
    return ArgumentParser(texts, known).parse();
}

} // namespace tomely
