#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QString source_folder = u"" ZIMBORA_SOURCE_DIR ""_s;

/// The floor on which a source stands, read off its path: 0 the ground, 1 decisions without a widget, 2 ui/, 3 windows,
/// 4 the roof. Nothing for a folder that is in none of the floors.
std::optional<int> floor_of(const QString &file) {
    static const QMap<QString, int> floors{{u"platform"_s, 0},   {u"state"_s, 0},     {u"wordlist"_s, 1},
                                           {u"dictionary"_s, 1}, {u"exercises"_s, 1}, {u"suggestions"_s, 1},
                                           {u"forms"_s, 1},      {u"lookup"_s, 1},    {u"media"_s, 1},
                                           {u"print"_s, 1},      {u"ui"_s, 2},        {u"app"_s, 4}};
    const QStringList path = file.split(u'/');
    const auto floor = floors.constFind(path.first());
    if (floor == floors.constEnd())
        return std::nullopt;
    return path.contains(u"widgets"_s) ? 3 : *floor;
}

/// The folder in which a source lies.
QString place_of(const QString &file) {
    return file.section(u'/', 0, -2);
}

QString folder_of(const QString &file) {
    return file.section(u'/', 0, 0);
}

QStringList sources() {
    QStringList files;
    QDirIterator all(source_folder, {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext())
        files.append(all.next().mid(source_folder.size() + 1));
    return files;
}

/// Our own headers that `file` includes.
QStringList includes_of(const QString &file) {
    QFile source(source_folder + u'/' + file);
    if (!source.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file));
    static const QRegularExpression own(u"^#include \"([^\"]+)\""_s, QRegularExpression::MultilineOption);
    QStringList headers;
    auto matches = own.globalMatch(QString::fromUtf8(source.readAll()));
    while (matches.hasNext())
        headers.append(matches.next().captured(1));
    return headers;
}

TEST(Includes, go_down_or_stay_on_their_floor) {
    const QStringList files = sources();
    ASSERT_GT(files.size(), 30);
    for (const QString &file : files) {
        const auto floor = floor_of(file);
        ASSERT_TRUE(floor) << file.toStdString() << " stands on no floor";
        for (const QString &header : includes_of(file)) {
            const auto below = floor_of(header);
            ASSERT_TRUE(below) << file.toStdString() << " includes " << header.toStdString();
            EXPECT_LE(*below, *floor) << file.toStdString() << " includes " << header.toStdString() << " above it";
        }
    }
}

TEST(Includes, of_a_window_never_name_another_folders_window) {
    for (const QString &file : sources()) {
        if (floor_of(file) != 3)
            continue;
        for (const QString &header : includes_of(file)) {
            if (floor_of(header) == 3) {
                EXPECT_EQ(folder_of(header), folder_of(file)) << file.toStdString();
            }
        }
    }
}

using Arrows = QMap<QString, QSet<QString>>;

/// From each folder to those whose headers its sources include.
Arrows arrows_between_folders() {
    Arrows arrows;
    for (const QString &file : sources()) {
        for (const QString &header : includes_of(file)) {
            if (place_of(header) != place_of(file))
                arrows[place_of(file)].insert(place_of(header));
        }
    }
    return arrows;
}

/// Everything that can be reached from a folder along the arrows.
QSet<QString> reached_from(const QString &folder, const Arrows &arrows) {
    QSet<QString> reached;
    QStringList open{folder};
    while (!open.isEmpty()) {
        for (const QString &next : arrows.value(open.takeFirst())) {
            if (!reached.contains(next)) {
                reached.insert(next);
                open.append(next);
            }
        }
    }
    return reached;
}

TEST(Includes, never_lead_back_to_the_folder_they_come_from) {
    const Arrows arrows = arrows_between_folders();
    ASSERT_GT(arrows.size(), 10);
    for (const QString &folder : arrows.keys())
        EXPECT_FALSE(reached_from(folder, arrows).contains(folder)) << folder.toStdString();
}

TEST(SystemHeaders, are_included_by_the_ports_only) {
    static const QRegularExpression system(
        u"^#include <(unistd|windows|fcntl|sys/|csignal)|^#\\s*if.*(_WIN32|__linux__|Q_OS_)"_s,
        QRegularExpression::MultilineOption);
    for (const QString &file : sources()) {
        if (file.startsWith(u"platform/linux/"_s) || file.startsWith(u"platform/windows/"_s))
            continue;
        QFile source(source_folder + u'/' + file);
        ASSERT_TRUE(source.open(QIODevice::ReadOnly));
        EXPECT_FALSE(system.match(QString::fromUtf8(source.readAll())).hasMatch()) << file.toStdString();
    }
}

}  // namespace
