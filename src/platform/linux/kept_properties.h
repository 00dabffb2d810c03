#pragma once

#include <sys/stat.h>

/// Gives the file `to`, which this process has made, what belongs to the file `from` beside its bytes: its group, its
/// owner, its permissions and extended attributes, among them the access list. What the system refuses is left out, for
/// it is no reason not to save; nobody gets a right by it that `from` does not give: where the group could not be kept,
/// the new one has the rights of all others.
void keep_properties(const struct stat &from_state, int from, int to);
