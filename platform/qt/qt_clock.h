#pragma once
#include <QDateTime>

#include "platform/qt/look.h"
#include "platform/services.h"

class QtClock : public Clock {
public:
    std::string DateText() override { return FromQt(QDate::currentDate().toString(QStringLiteral("dd/MM/yyyy"))); }
    std::string TimeText() override { return FromQt(QTime::currentTime().toString(QStringLiteral("HH:mm:ss"))); }
};
