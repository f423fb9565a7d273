#ifndef DELIVEREVENTS_H
#define DELIVEREVENTS_H

#include <QCoreApplication>

/// Delivers what is posted to the event loop, and what that posts in turn: a command is sent,
/// carried out and answered.
inline void deliverEvents()
{
    constexpr int Turns = 4;
    for (int turn = 0; turn < Turns; ++turn)
        QCoreApplication::sendPostedEvents();
}

#endif
