#pragma once

#include "base/Date.h"
#include "support/TestServices.h"

#include <QHash>
#include <QObject>
#include <QStringList>

class Wuffer;

/// Follows every run of every timer by the notices that they give, and keeps what was wrong: a run
/// must ring once, at its end and not before, in all the ways that the settings ask for and in no
/// other; and with each notice the status item must show what runs.
///
/// To be made after the controller, so that it looks when the status item is up to date.
class RunWitness final : public QObject
{
public:
    explicit RunWitness(TestServices &services);

    /// Looks for what no notice tells of; to be called whenever time has passed and before a
    /// setting changes.
    void look();

    /// What was wrong so far.
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
    /// What a ring is made of.
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
