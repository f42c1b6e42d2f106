#pragma once

#include "base/NotificationCenter.h"

/// Counts the notices of this name for as long as the counter lives.
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
