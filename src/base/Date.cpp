#include "base/Date.h"

#include "base/Clock.h"
#include "base/Service.h"

namespace
{
/// The beginning of the year 4001 on the scale of the clock: later than the end of any run, but
/// finite, so that calculations with it are too.
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
