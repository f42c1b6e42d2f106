#pragma once

#include <QDialog>

#include <memory>

class MainMenu;

namespace Ui
{
class About;
}

/// Shows the program's name, version and licence, and the libraries that it uses with their
/// licences. The text can be selected, to be pasted into a bug report. The dialog has no menu bar,
/// but the shortcuts of the menus work in it.
class AboutDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(const MainMenu &menu);
    ~AboutDialog() override;

    /// Shows the dialog in front of the active window, even when that one is kept on top.
    void orderFront();

private:
    std::unique_ptr<Ui::About> _ui;
};
