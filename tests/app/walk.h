#pragma once

#include "tests/app/program.h"

// By mouse from the live picture through all screens of the program, up to a series that has begun: which
// buttons are there, which are enabled, and where. Returns what was not as it should be; empty when all was.
inline QString walkThroughAllScreens()
{
    const QPoint firstThumbnail(60, Program::height() - Program::buttonHeight() - Program::height() / 10);
    const struct {
        const char *screen;
        QPoint press;
        QString row; // E enabled, d disabled, . not there
        char settings;
        char close;
        char accept; // and Retry
    } steps[] = {
        {"live", {}, "EEEEE", 'E', 'E', '.'},
        {"photo preview", Program::liveRow(1), "ddddd", 'd', 'd', 'E'},
        {"photo review", Program::acceptButton(), "EEE.", '.', 'E', '.'},
        {"live again", Program::row(0), "EEEEE", 'E', 'E', '.'},
        {"recording", Program::liveRow(3), "dddEd", 'd', 'd', '.'},
        {"movie", Program::liveRow(3), "EEE.", '.', 'E', '.'},
        {"list of movies", Program::row(2), "EdEE", '.', 'E', '.'},
        {"a movie chosen", firstThumbnail, "EEEE", '.', 'E', '.'},
        {"the movie", Program::row(1), "EEE.", '.', 'E', '.'},
        {"list once more", Program::row(2), "EdEE", '.', 'E', '.'},
        {"list of photos", Program::row(3), "EdEE", '.', 'E', '.'},
        {"a photo chosen", firstThumbnail, "EEEE", '.', 'E', '.'},
        {"grid", Program::row(1), "EEE.", '.', 'E', '.'},
        {"live a third time", Program::row(0), "EEEEE", 'E', 'E', '.'},
        {"series", Program::liveRow(2), "EdEdd", '.', 'd', '.'},
    };
    for (const auto &step : steps) {
        if (!step.press.isNull())
            Program::click(step.press);
        QString seen;
        const QString expected = step.row + step.settings + step.close + step.accept + step.accept;
        const bool isSeen = QTest::qWaitFor([&] {
            const QImage image = Program::screen();
            seen = Program::rowLooks(image);
            for (const QPoint &button : {Program::settingsButton(), Program::exitButton(),
                                         Program::acceptButton(), Program::retryButton()})
                seen += Program::look(image, button);
            // Pictures reach down to the second row of some screens.
            return step.accept == '.' ? seen.startsWith(expected.left(expected.size() - 2))
                                      : seen == expected;
        });
        if (!isSeen)
            return QString("%1: %2, not %3").arg(step.screen, seen, expected);
    }
    return {};
}
