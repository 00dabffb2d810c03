#pragma once

#include <QString>
#include <optional>

#include "platform/files.h"

/// Where the program may find its program folder; each is a path or empty.
struct ProgramFolderPlaces {
    /// What the environment's ZIMBORA_PROGRAM names.
    QString environment;
    /// Folder of the executable.
    QString executable;
    /// Folder of the executables of the build that this program was made by.
    QString build_bin;
    /// What is used instead of the folder of the executable when that is `build_bin`.
    QString staged;
    /// Folder in which a system-wide installation keeps the dictionaries, what explains forms and the silence
    /// "null.wav", and in folders the help ("help"), the sounds ("hangok"), the music ("zenemid") and the initial
    /// settings ("kavaro"). Empty where an installation is one folder, with the executable in it.
    QString installed_dictionaries;
    /// The user's documents.
    QString documents;
};

/// The program folder: the first that applies of the environment's; the executable's when a dictionary lies in it; the
/// staged one when the program runs from its build folder; the executable's again where an installation is one folder;
/// else the folder "Zimbora" in the user's documents, which is made and linked to the installed dictionaries and what
/// explains forms; the help and the silence are copied to where their addresses point, and the folders of the sounds,
/// the music and the initial settings into it, each while there is none: what the user deletes in them stays deleted.
/// No separator at its end. A folder that cannot be made is returned all the same: program_folder_failure() tells of
/// it.
[[nodiscard]] QString find_program_folder(const ProgramFolderPlaces &places);

/// True when the folder in the user's documents applies and has still to be made: at the very first start.
[[nodiscard]] bool program_folder_is_missing(const ProgramFolderPlaces &places);

/// Why nothing in the program folder `folder` can be read: it is missing, no folder, or closed to this user; nothing
/// when it can be.
[[nodiscard]] std::optional<Failure> program_folder_failure(const QString &folder);

/// Names of the two dictionaries in the program folder.
extern const QString english_hungarian_file;
extern const QString hungarian_english_file;
/// Name of the folder in it that has what explains inflected forms.
extern const QString form_data_folder;
/// Names of what is made of the dictionaries beside them: the index of their words, and how common the headwords are of
/// the English and of the Hungarian one.
extern const QString word_index_file;
extern const QString english_frequency_file;
extern const QString hungarian_frequency_file;
