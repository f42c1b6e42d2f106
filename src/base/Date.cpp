#include "base/Date.h"

#include "base/Clock.h"
#include "base/Service.h"

namespace
{
/// The beginning of the year 4001 on the scale of the clock: far beyond every run, and still a
/// finite number that can be reckoned with.
constexpr double kDistantFuture = 64092211200.0;
} // namespace

Date Date::now()
{
    return Date(Service<Clock>::current().now());
}

Date Date::distantFuture()
{
    return Date(kDistantFuture);
}
