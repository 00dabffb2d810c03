#pragma once

#include <QStringList>

#include "platform/multimedia_commands.h"

/// Notes every command, and tells as the MIDI device's state what a test wants.
class FakeMultimedia final : public MultimediaCommands {
  public:
    QStringList commands;
    QString midi_state;

    MultimediaAnswer send(const QString &command, int) override {
        commands.append(command);
        return {0, command.startsWith(QStringLiteral("Status")) ? midi_state : QString()};
    }
};
