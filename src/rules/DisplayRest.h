#pragma once

#include <utility>

/// Whether the display of a timer is kept up to date. While nobody sees it it may rest, and says
/// what was so before.
class DisplayRest final
{
public:
    [[nodiscard]] bool isUnseen() const { return _unseen; }
    [[nodiscard]] bool isResting() const { return _resting; }

    /// Whether the window system has said that nothing is seen of the display. Answers whether
    /// that has ended a rest: what is seen again must catch up.
    [[nodiscard]] bool setUnseen(bool unseen)
    {
        _unseen = unseen;
        return !unseen && std::exchange(_resting, false);
    }

    /// Lets an unseen display rest, or be up to date from now on.
    void setResting(bool resting) { _resting = resting && _unseen; }

private:
    bool _unseen = false;
    bool _resting = false;
};
