#include "platform/SingleInstance.h"

SingleInstance::SingleInstance() = default;

QVariantMap SingleInstance::thisLaunch()
{
    return {};
}

bool SingleInstance::claim()
{
    return true;
}

bool SingleInstance::forward(const QString & /*action*/, const QVariantMap & /*launch*/) const
{
    return false;
}

void SingleInstance::inherit() {}
