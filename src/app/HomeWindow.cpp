#include "app/HomeWindow.h"

#include "app/MainMenu.h"
#include "base/Mnemonics.h"
#include "controls/WindowButtons.h"
#include "ui_Home.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenuBar>
#include <QTextDocument>

namespace
{
constexpr int kRows = 5;
/// The longest text on a button, in widths of a digit; longer texts are elided.
constexpr int kLongestText = 32;

/// Puts the text of the item on the button, elided if it is too long.
void showText(QPushButton &button, const QAction &item)
{
    const QFontMetrics metrics(button.font());
    const int room = kLongestText * metrics.horizontalAdvance(QLatin1Char('0'));
    // Items and buttons mark mnemonics alike. A preset has none; an & in its name is doubled.
    const QString text = item.text().simplified();
    button.setText(metrics.elidedText(text, Qt::ElideRight, room, Qt::TextShowMnemonic));
    button.setAccessibleName(Mnemonics::shown(text));
    button.setToolTip(button.text() == text ? QString()
                                            : Qt::convertFromPlainText(button.accessibleName()));
}
} // namespace

HomeWindow::HomeWindow(MainMenu &menu, QAction &newTimer, const std::vector<QAction *> &presets) :
    QMainWindow(nullptr, kWindowNotToMaximize), _ui(std::make_unique<Ui::Home>())
{
    auto *contents = new QWidget(this);
    _ui->setupUi(contents);
    setCentralWidget(contents);
    menu.addTo(*this);
    widenToMenus();
    connect(_ui->_newTimerButton, &QPushButton::clicked, &newTimer, &QAction::trigger);
    for (QAction *preset : presets)
        addPreset(*preset);
    _ui->_newTimerButton->setFocus();
}

HomeWindow::~HomeWindow() = default;

void HomeWindow::widenToMenus()
{
    const QMargins margins = _ui->_homeLayout->contentsMargins();
    const int width = menuBar()->sizeHint().width() - margins.left() - margins.right();
    _ui->_homeSpacer->changeSize(width, 0, QSizePolicy::Minimum, QSizePolicy::Expanding);
}

void HomeWindow::addPreset(QAction &preset)
{
    constexpr int cellsOfAPreset = 2;
    const int number = _ui->_presetsLayout->count() / cellsOfAPreset;
    const int row = number % kRows;
    const int column = number / kRows * cellsOfAPreset;
    auto *key = new QLabel(preset.shortcut().toString(QKeySequence::NativeText), this);
    auto *button = new QPushButton(this);
    button->setStyleSheet(QStringLiteral("text-align: left; padding: 4px 10px"));
    button->setAutoDefault(true);
    _ui->_presetsLayout->addWidget(key, row, column, Qt::AlignRight | Qt::AlignVCenter);
    _ui->_presetsLayout->addWidget(button, row, column + 1);
    connect(button, &QPushButton::clicked, &preset, &QAction::trigger);
    connect(&preset, &QAction::changed, button, [button, &preset] { showText(*button, preset); });
    showText(*button, preset);
}

void HomeWindow::closeEvent(QCloseEvent *event)
{
    event->accept();
    Q_EMIT closed();
}
