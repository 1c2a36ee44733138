// Alerts as message boxes: the heading is "Tomely", the informative text stands beneath.

#pragma once

#include "platform/Alerts.h"

namespace tomely {

class MessageBoxAlerts : public Alerts {
public:
    int runModal(const Alert& alert) override;
    void beginSheet(
        QObject* window, const Alert& alert, std::function<void(int button)> answered) override;
};

} // namespace tomely
