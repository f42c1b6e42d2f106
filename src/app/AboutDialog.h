#pragma once

#include <QDialog>

#include <memory>

class MainMenu;

namespace Ui
{
class About;
}

/// Says what the program is: its name, version and licence, and the libraries that it uses with
/// theirs. All of it can be selected, for a report. It shows no menus, but their keys work.
class AboutDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(const MainMenu &menu);
    ~AboutDialog() override;

    /// Shows it in front of the active window, even if that is kept above all others.
    void orderFront();

private:
    std::unique_ptr<Ui::About> _ui;
};
