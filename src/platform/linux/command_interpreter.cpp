#include "platform/linux/command_interpreter.h"

#include <QFileInfo>
#include <optional>
#include <utility>

#include "platform/linux/command_string.h"

using namespace Qt::StringLiterals;

namespace {

MultimediaAnswer failure(quint32 code) {
    return {code, {}};
}

/// Aliases and keywords are the same in small letters and capitals.
QString same_case(const QString &word) {
    return word.toLower();
}

std::optional<SoundType> type_of(const QString &word) {
    const QString name = same_case(word);
    if (name == u"waveaudio"_s)
        return SoundType::wave;
    if (name == u"sequencer"_s)
        return SoundType::midi;
    return std::nullopt;
}

/// What "open" is told behind the file.
struct OpenWords {
    QString type;
    QString alias;
};

/// Nothing when there are other words than those two, or one of them lacks its value.
std::optional<OpenWords> open_words(const QStringList &words) {
    OpenWords found;
    for (qsizetype i = 0; i < words.size(); i += 2) {
        const QString keyword = same_case(words[i]);
        const bool type = keyword == u"type"_s;
        if ((!type && keyword != u"alias"_s) || i + 1 == words.size())
            return std::nullopt;
        (type ? found.type : found.alias) = words[i + 1];
    }
    return found;
}

}  // namespace

CommandInterpreter::CommandInterpreter(SoundPlayerFactory make_player, Clock now)
    : make_player_(std::move(make_player)), now_(std::move(now)) {}

MultimediaAnswer CommandInterpreter::send(const QString &command, int answer_length) {
    const auto words = words_of_command(command);
    if (!words)
        return failure(mci_error::no_closing_quote);
    if (words->isEmpty())
        return failure(mci_error::missing_command_string);
    const QString verb = same_case(words->first());
    const bool known = QStringList{u"open"_s, u"play"_s, u"status"_s, u"close"_s}.contains(verb);
    if (!known)
        return failure(mci_error::unrecognized_command);
    if (words->size() < 2)
        return failure(mci_error::missing_device_name);
    if (verb == u"open"_s)
        return open(words->sliced(1));
    const QString name = same_case(words->at(1));
    if (!open_.contains(name))
        return failure(mci_error::invalid_device_name);
    if (verb == u"status"_s) {
        const MultimediaAnswer answer = status(name, words->sliced(2));
        return answer.text.size() < answer_length || answer.code != 0 ? answer : failure(mci_error::answer_too_long);
    }
    if (words->size() > 2)
        return failure(mci_error::unrecognized_keyword);
    return verb == u"play"_s ? play(name) : close(name);
}

MultimediaAnswer CommandInterpreter::open(const QStringList &words) {
    const QString &path = words.first();
    const auto rest = open_words(words.sliced(1));
    if (!rest)
        return failure(mci_error::unrecognized_keyword);
    if (rest->type.isEmpty())
        return failure(mci_error::device_type_required);
    const auto type = type_of(rest->type);
    if (!type)
        return failure(mci_error::invalid_device_name);
    const QString alias = same_case(rest->alias.isEmpty() ? path : rest->alias);
    if (open_.contains(alias))
        return failure(mci_error::duplicate_alias);
    // Neither a folder nor a pipe, whose end may never come.
    if (!QFileInfo(path).isFile())
        return failure(mci_error::file_not_found);
    if (!has_player())
        return failure(mci_error::device_not_installed);
    std::unique_ptr<Sound> sound = player_->open(*type, path);
    if (!sound)
        return failure(mci_error::invalid_file);
    open_.insert(alias, std::move(sound));
    return {};
}

MultimediaAnswer CommandInterpreter::play(const QString &name) {
    return open_.value(name)->play() ? MultimediaAnswer() : failure(mci_error::device_not_ready);
}

MultimediaAnswer CommandInterpreter::close(const QString &name) {
    open_.remove(name);
    return {};
}

MultimediaAnswer CommandInterpreter::status(const QString &name, const QStringList &items) const {
    if (items.isEmpty())
        return failure(mci_error::missing_parameter);
    if (items.size() > 1 || same_case(items.first()) != u"mode"_s)
        return failure(mci_error::unrecognized_keyword);
    return {0, open_.value(name)->playing() ? u"playing"_s : u"stopped"_s};
}

bool CommandInterpreter::has_player() {
    const bool wanted = !player_ || (player_->silent() && open_.isEmpty());
    if (!wanted || now_() < next_attempt_)
        return player_ != nullptr;
    // One player has the device at a time.
    player_.reset();
    player_ = make_player_();
    if (!player_ || player_->silent())
        next_attempt_ = now_() + pause_without_device;
    return player_ != nullptr;
}
