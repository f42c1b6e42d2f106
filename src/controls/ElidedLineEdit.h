#pragma once

#include <QLineEdit>

/// A text field that elides a text that is too long at its end, instead of showing some part of it,
/// whenever the user is not editing it.
class ElidedLineEdit final : public QLineEdit
{
    Q_OBJECT

public:
    explicit ElidedLineEdit(QWidget *parent = nullptr) : QLineEdit(parent) {}

protected:
    void paintEvent(QPaintEvent *event) override;
};
