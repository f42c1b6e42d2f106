#include "timer/Wuffer.h"

#include "base/Keys.h"
#include "base/NotificationCenter.h"
#include "controls/LegibleWhenDisabled.h"
#include "controls/PickFromList.h"
#include "controls/PressThrough.h"
#include "rules/TimeFormat.h"
#include "rules/TimerTexts.h"
#include "sounds/SoundPreviews.h"
#include "timer/TargetTimeSheet.h"
#include "timer/TimeEntry.h"
#include "timer/WufferWindow.h"
#include "ui_Wuffer.h"

namespace
{
/// Makes the field wide enough for this many digits.
void fitToDigits(QLineEdit &field, int digits)
{
    const int spare = field.sizeHint().height() - field.fontMetrics().height();
    const int digitWidth = field.fontMetrics().horizontalAdvance(QLatin1Char('0'));
    field.setFixedWidth(digits * digitWidth + 2 * spare);
}

/// Shows the first title on the button and makes it wide enough for all of them, so that a new
/// title does not move the layout.
void fitToTitles(QPushButton &button, std::initializer_list<QString> titles)
{
    int width = 0;
    for (const QString &each : titles) {
        button.setText(each);
        width = std::max(width, button.sizeHint().width());
    }
    button.setText(*titles.begin());
    button.setMinimumWidth(width);
}
} // namespace

Wuffer::Wuffer(TimerHost &host) :
    _host(host), _window(std::make_unique<WufferWindow>(*this)), _ui(std::make_unique<Ui::Wuffer>())
{
    _ui->setupUi(_window.get());
    _window->skipWhenFocusIsLost(*_ui->_titleField);
    fitControls();
    awakeFromNib();
}

Wuffer::~Wuffer()
{
    // The display must be back in its window before the window is destroyed.
    setWindowed();
    // Destroying a visible window takes the focus from its fields. Their signals must not reach
    // this object any more.
    for (const QObject *control : _window->findChildren<QObject *>())
        control->disconnect(this);
    _window->disconnect(this);
}

void Wuffer::awakeFromNib()
{
    connectControls();
    setFullScreenFontSizes(false);
    setResultLabelText(kUnnamedTitle.toString());
    setDefaultDisplayValues();
    enableReturnShortcut();
    populateFinishedCombo();
    loadGlobalSettings();
    NotificationCenter::defaultCenter().addObserver(*this, Notices::kPrefsChanged,
                                                    [this](QObject *) { loadGlobalSettings(); });
}

void Wuffer::fitControls()
{
    constexpr int digits = 6;
    for (QLineEdit *field : {_ui->_hoursField, _ui->_minutesField, _ui->_secondsField})
        fitToDigits(*field, digits);
    fitToTitles(*_ui->_goButton, {TimerTexts::start(), TimerTexts::stop(), TimerTexts::reset(),
                                  TimerTexts::startChain(), TimerTexts::chained()});
    fitToTitles(*_ui->_finishedDrawerButton,
                {TimerTexts::moreOptions(), TimerTexts::hideOptions()});
    // The time that was set stays of interest while the timer runs, as does “Chained”.
    for (QWidget *each : std::initializer_list<QWidget *>{_ui->_hoursField, _ui->_minutesField,
                                                          _ui->_secondsField, _ui->_goButton})
        new LegibleWhenDisabled(*each);
    // As wide as the buttons above and below, so that showing it does not resize the combo boxes.
    _ui->_linkButton->setFixedWidth(_ui->_helpButton->sizeHint().width());
    _timeEntry = std::make_unique<TimeEntry>(
        *_window, TimeEntry::Fields{_ui->_hoursField, _ui->_minutesField, _ui->_secondsField});
}

void Wuffer::connectControls()
{
    connect(_window.get(), &WufferWindow::willClose, this, &Wuffer::windowWillClose);
    connect(_window.get(), &WufferWindow::returnPressed, _ui->_goButton, &QPushButton::click);
    connect(_ui->_goButton, &QPushButton::clicked, this, &Wuffer::goPressed);
    connect(_ui->_keepWuffingBox, &QCheckBox::clicked, this, &Wuffer::removePresetColor);
    connect(_ui->_displayBox, &DisplayBox::fullScreenCloseRequested, this, &Wuffer::setWindowed);
    connect(_ui->_displayBox, &DisplayBox::windowActivated, this,
            [this] { _alarmNotification.windowActivated(); });
    connect(_ui->_displayBox, &DisplayBox::colorsChanged, this,
            [this] { setColorForDisplayText(_titleColor, false); });
    for (QLineEdit *field : std::initializer_list<QLineEdit *>{
             _ui->_titleField, _ui->_hoursField, _ui->_minutesField, _ui->_secondsField}) {
        connect(field, &QLineEdit::textEdited, this,
                [this, field] { controlTextDidChange(*field); });
        connect(field, &QLineEdit::editingFinished, this,
                [this, field] { controlTextDidEndEditing(*field); });
    }
    for (QComboBox *combo :
         std::initializer_list<QComboBox *>{_ui->_finishedCombo, _ui->_finishedPicker,
                                            _ui->_alarmSoundCombo, _ui->_countdownSoundCombo}) {
        connect(combo, &QComboBox::activated, this,
                [this, combo] { comboBoxSelectionDidChange(*combo); });
    }
    for (const PopUpComboBox *combo : {_ui->_finishedCombo, _ui->_finishedPicker})
        connect(combo, &PopUpComboBox::willPopUp, this, &Wuffer::handleFinishedComboChange);
    for (WebbyComboBox *combo : {_ui->_alarmSoundCombo, _ui->_countdownSoundCombo})
        new PickFromList(*combo);
    // The linked timers show the name of this one.
    connect(_ui->_titleField, &QLineEdit::textChanged, this, [this] {
        for (Wuffer *linked : {_targetWuffer.data(), _reverseTargetWuffer.data()}) {
            if (linked)
                linked->showLinks();
        }
    });
    for (auto *button : _window->findChildren<QAbstractButton *>())
        new PressThrough(*button);
    connectDrawer();
}

void Wuffer::connectDrawer()
{
    connect(_ui->_finishedDrawerButton, &QPushButton::clicked, this, &Wuffer::showHideAdvanced);
    connect(_ui->_drawer, &Drawer::stateChanged, this, &Wuffer::stateChanged);
    connect(_ui->_drawer, &Drawer::stateChanged, _ui->_finishedDrawerButton,
            [this] { _ui->_finishedDrawerButton->setExpanded(_ui->_drawer->isExpanded()); });
    connect(_ui->_helpButton, &QToolButton::clicked, this, &Wuffer::getFinishingHelp);
    connect(_ui->_linkButton, &QToolButton::clicked, this,
            [this] { Q_EMIT targetsRequested(_ui->_linkButton); });
    _previews = std::make_unique<SoundPreviews>(
        SoundPreviews::Place{*_ui->_alarmPlayButton, *_ui->_alarmSoundCombo},
        SoundPreviews::Place{*_ui->_countdownPlayButton, *_ui->_countdownSoundCombo});
    connect(_window.get(), &WufferWindow::willClose, _previews.get(), &SoundPreviews::stop);
    connect(_ui->_drawer, &Drawer::stateChanged, _previews.get(), [this] {
        if (_ui->_drawer->state() == Drawer::State::Closing)
            _previews->stop();
    });
}

QString Wuffer::title() const
{
    const QString name = _ui->_titleField->text();
    return name.isEmpty() ? kUnnamedTitle.toString() : name;
}

QString Wuffer::description() const
{
    return TimerTexts::description(title(), TimeFormat::hmsString(hours(), minutes(), seconds()));
}

QString Wuffer::statusString() const
{
    if (!_displayRest.isResting())
        return _ui->_resultLabel->text();
    const RunTimes times = _run.timesAt(Date::now().addingTimeInterval(-kRunTick));
    return TimeFormat::stringForTime(_run.counted(times));
}

QAbstractButton &Wuffer::goButton() const
{
    return *_ui->_goButton;
}
