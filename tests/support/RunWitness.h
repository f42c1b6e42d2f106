#pragma once

#include "base/Date.h"
#include "support/TestServices.h"

#include <QHash>
#include <QObject>
#include <QStringList>

class Wuffer;

/// Follows every run of every timer through the timers' notices, and records every violation of two
/// rules: a run rings once, at its end and not before, in exactly the ways that the settings ask
/// for; and after each notice the status item shows what runs.
///
/// Create it after the controller: the witness then gets each notice when the status item is
/// already up to date.
class RunWitness final : public QObject
{
public:
    explicit RunWitness(TestServices &services);

    /// Checks what no notice reports. Call it whenever time has passed and before a setting
    /// changes.
    void look();

    /// The violations found so far.
    QStringList complaints;
    int runs = 0;
    int rings = 0;
    int beeps = 0;

private:
    struct Run
    {
        Date begin;
        Date end;
        bool hasRung = false;
    };
    /// How often the timers have called for attention, in each of the three ways.
    struct Signs
    {
        int notifications = 0;
        int alarms = 0;
        int attentions = 0;
        [[nodiscard]] bool operator==(const Signs &) const = default;
    };

    void noticed(const Wuffer &timer);
    void begin(const Wuffer &timer);
    void ring(Run &run);
    void endRun(const Run &run);
    void compareSigns();
    void lookAtStatusItem();
    void lookAt(const Wuffer &timer, const Run &run);
    /// Seconds since the run should have rung; negative before.
    [[nodiscard]] static double overdue(const Run &run);
    void require(bool condition, const char *what);
    [[nodiscard]] bool isSet(const char *key) const;

    TestServices &_services;
    QHash<const Wuffer *, Run> _runs;
    Signs _expected;
    Signs _seen;
};
