#pragma once

#include "base/ClockTimer.h"

#include <QDialog>

#include <memory>

namespace Ui
{
class TargetTime;
}

/// The sheet in which the user picks the end of a countdown. A calendar and a date field follow
/// each other, and a label shows how far away the date is. The hour is selected when the sheet
/// opens, because most dates differ only in their time. The sheet starts nothing: accepted() and
/// rejected() report the user's answer.
class TargetTimeSheet final : public QDialog
{
    Q_OBJECT

public:
    explicit TargetTimeSheet(QWidget &parent);
    ~TargetTimeSheet() override;

    /// Sets the earliest date that the user can pick. Fractions of a second are cut.
    void setMinDate(const QDateTime &date);

    [[nodiscard]] QDateTime dateValue() const;
    void setDateValue(const QDateTime &date);

    /// Selects the hour when the sheet opens.
    void setVisible(bool visible) override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void connectControls();
    /// Selects the hour when the field receives the focus for the first time since the sheet
    /// opened.
    void focusChanged(const QWidget *now);
    void showDistance();

    std::unique_ptr<Ui::TargetTime> _ui;
    bool _selectsHourOnFocus = false;
    /// Updates the distance while the sheet is visible.
    ClockTimer _distanceTimer{[this] { showDistance(); }};
};
