#include "platform/browser_sandbox.h"

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QString>
#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *switched_off = "QTWEBENGINE_DISABLE_SANDBOX";

/// Tries what the engine does at its start, in a process that ends at once.
bool can_lock_in() {
    const pid_t child = fork();
    if (child < 0)
        return false;
    if (child == 0)
        _exit(unshare(CLONE_NEWUSER) == 0 ? 0 : 1);
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR)
            return false;
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// The engine asks only whether there is such a variable, not what it says.
bool is_switched_off() {
    if (!qEnvironmentVariableIsSet(switched_off))
        return false;
    const QByteArray value = qgetenv(switched_off).trimmed();
    if (!value.isEmpty() && value != "0")
        return true;
    qunsetenv(switched_off);
    return false;
}

}  // namespace

std::optional<Failure> prepare_browser_sandbox() {
    if (geteuid() == 0)
        qputenv(switched_off, "1");
    if (is_switched_off() || can_lock_in())
        return std::nullopt;
    return Failure{
        u"A súgó böngészője nem indítható: a rendszer nem engedi, hogy a lapokat elzárva "
        "jelenítse meg (a felhasználói névterek ki vannak kapcsolva)."_s};
}
