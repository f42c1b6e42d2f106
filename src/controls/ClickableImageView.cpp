#include "controls/ClickableImageView.h"

#include "base/Keys.h"
#include "base/NotificationCenter.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

ClickableImageView::ClickableImageView(QWidget *parent) : QLabel(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setAlignment(Qt::AlignCenter);
}

void ClickableImageView::setImage(const QString &fileName)
{
    if (fileName == _imageName)
        return;
    _imageName = fileName;
    setPixmap(QPixmap(QStringLiteral(":/images/") + fileName));
}

void ClickableImageView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        announceClick();
    QLabel::mousePressEvent(event);
}

void ClickableImageView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        announceClick();
    else
        QLabel::keyPressEvent(event);
}

void ClickableImageView::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void ClickableImageView::announceClick()
{
    NotificationCenter::defaultCenter().postNotificationName(Notices::kClickableImageViewClicked,
                                                             this);
}
