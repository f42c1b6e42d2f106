#pragma once

#include "base/ClockTimer.h"

#include <QDialog>

#include <memory>

namespace Ui
{
class TargetTime;
}

/// The sheet in which the end of a countdown is picked: a calendar and a date field that follow
/// each other, and how long that is from now. It opens with the hour selected, which is what most
/// dates differ in. It only asks; accepted() and rejected() say how it was answered.
class TargetTimeSheet final : public QDialog
{
    Q_OBJECT

public:
    explicit TargetTimeSheet(QWidget &parent);
    ~TargetTimeSheet() override;

    /// Nothing earlier than this can be picked. Fractions of a second are left out.
    void setMinDate(const QDateTime &date);

    [[nodiscard]] QDateTime dateValue() const;
    void setDateValue(const QDateTime &date);

    /// Opens with the hour selected.
    void setVisible(bool visible) override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void connectControls();
    /// Selects the hour when the field gets the keyboard for the first time since the sheet opened.
    void focusChanged(const QWidget *now);
    void showDistance();

    std::unique_ptr<Ui::TargetTime> _ui;
    bool _hourIsDue = false;
    /// Now moves on while the sheet is in sight.
    ClockTimer _distanceTimer{[this] { showDistance(); }};
};
