#pragma once

#include "base/Desktop.h"

/// The desktop that the program runs on.
class SystemDesktop final : public Desktop
{
public:
    void requestUserAttention(QWidget &window) override;
    void beep() override;
    void announce(QWidget &window, const QString &text) override;
    void openUrl(const QUrl &url) override;
};
