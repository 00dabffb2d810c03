#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <utility>

#include "platform/multimedia_commands.h"

using namespace Qt::StringLiterals;

/// A multimedia device that notes what it is told and makes no sound.
class FakeMultimedia final : public MultimediaCommands {
  public:
    /// Each command, with the length of its answer behind a bar: "close hang|0".
    QStringList sent;
    /// What the question for the mode is answered.
    QString mode;
    /// Code of every command; the answer is empty unless it is 0.
    quint32 code = 0;
    /// Called while a command is carried out.
    std::function<void()> meanwhile = [] {};

    MultimediaAnswer send(const QString &command, int answer_length) override {
        sent.append(command + u'|' + QString::number(answer_length));
        meanwhile();
        const bool asks = command.startsWith(u"Status "_s);
        return {code, asks && code == 0 ? mode : QString()};
    }

    /// What was sent since the last call.
    QStringList take_sent() { return std::exchange(sent, {}); }
};
