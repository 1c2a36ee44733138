// Alerts that nobody sees: what is asked is recorded, and the test answers.

#pragma once

#include "platform/Alerts.h"

#include <QList>

namespace tomely {

class FakeAlerts : public Alerts {
public:
    int runModal(const Alert& alert) override
    {
        modals.append(alert);
        return answer;
    }

    void beginSheet(
        QObject* window, const Alert& alert, std::function<void(int button)> answered) override
    {
        sheets.append({window, alert, std::move(answered)});
    }

    struct Sheet {
        QObject* window;
        Alert alert;
        std::function<void(int button)> answered;
    };

    QList<Alert> modals;
    QList<Sheet> sheets;
    int answer = 0; // what modal alerts are answered with
};

} // namespace tomely
