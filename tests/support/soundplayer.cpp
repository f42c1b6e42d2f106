#include "audio/CubebSoundSystem.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include <iostream>
#include <map>
#include <sstream>

// Plays sounds at the command of a test. Each line of the standard input is an order:
//
//     load NAME PATH     play NAME       volume NAME VOLUME    playing NAME
//     destroy NAME       stop NAME       loops NAME 0|1        standin NAME FILE
//     quit
//
// The answer to each is a line with its result and the microseconds that it took.

namespace
{
class Player final
{
public:
    /// Carries out an order. Returns the duration for "load", 1 or 0 for "playing", else 0.
    double carryOut(std::istringstream &order);

private:
    CubebSoundSystem _system;
    std::map<std::string, std::unique_ptr<Sound>> _sounds;
};

double Player::carryOut(std::istringstream &order)
{
    std::string verb;
    std::string name;
    std::string argument;
    order >> verb >> name >> std::ws;
    std::getline(order, argument);
    if (verb == "load") {
        _sounds[name] = _system.soundWithContentsOfFile(QString::fromStdString(argument));
        QEventLoop answer;
        _sounds[name]->setWhenAnswered([&answer] { answer.quit(); });
        answer.exec();
        return _sounds[name]->duration();
    }
    Sound &sound = *_sounds.at(name);
    if (verb == "play")
        sound.play();
    else if (verb == "stop")
        sound.stop();
    else if (verb == "volume")
        sound.setVolume(std::stof(argument));
    else if (verb == "loops")
        sound.setLoops(argument == "1");
    else if (verb == "standin")
        sound.setStandIn(QString::fromStdString(argument));
    else if (verb == "destroy")
        _sounds.erase(name);
    else if (verb == "playing")
        return sound.isPlaying() ? 1 : 0;
    else
        qFatal("unknown order %s", verb.c_str());
    return 0;
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("soundplayer"));
    Player player;
    std::string line;
    while (std::getline(std::cin, line) && line != "quit") {
        QElapsedTimer timer;
        timer.start();
        std::istringstream order(line);
        const double result = player.carryOut(order);
        std::cout << result << ' ' << timer.nsecsElapsed() / 1000 << std::endl;
    }
    return 0;
}
