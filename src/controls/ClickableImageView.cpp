#include "controls/ClickableImageView.h"

#include "base/Keys.h"
#include "base/NotificationCenter.h"
#include "controls/AccessibleFactory.h"
#include "controls/AccessiblePress.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace
{
class AccessibleImageView final : public AccessiblePress
{
public:
    explicit AccessibleImageView(ClickableImageView &view) :
        AccessiblePress(
            view, [&view] { view.click(); }, [&view] { return view.accessibleDescription(); }),
        _view(view)
    {}

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePress::state();
        state.checkable = true;
        state.checked = _view.isChecked();
        return state;
    }

private:
    const ClickableImageView &_view;
};
} // namespace

ClickableImageView::ClickableImageView(QWidget *parent) : QLabel(parent)
{
    AccessibleFactory::install<ClickableImageView, AccessibleImageView>();
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

void ClickableImageView::setChecked(bool checked)
{
    if (checked == _checked)
        return;
    _checked = checked;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
    SpokenText::changed(*this);
}

void ClickableImageView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        click();
    QLabel::mousePressEvent(event);
}

void ClickableImageView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        click();
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

void ClickableImageView::click()
{
    NotificationCenter::defaultCenter().postNotificationName(Notices::kClickableImageViewClicked,
                                                             this);
}
