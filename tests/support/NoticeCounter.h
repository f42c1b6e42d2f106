#pragma once

#include "base/NotificationCenter.h"

/// Counts the notices of one name while it lives.
class NoticeCounter final : public QObject
{
public:
    explicit NoticeCounter(const QString &name)
    {
        NotificationCenter::defaultCenter().addObserver(*this, name, [this](QObject *object) {
            ++count;
            lastObject = object;
        });
    }

    int count = 0;
    QObject *lastObject = nullptr;
};
