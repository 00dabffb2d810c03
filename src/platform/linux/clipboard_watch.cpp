#include "platform/clipboard_watch.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>
#include <xcb/xfixes.h>

#include <QByteArray>
#include <algorithm>
#include <array>
#include <mutex>
#include <span>
#include <thread>

#include "platform/linux/clipboard_text.h"
#include "platform/linux/x11.h"

// The clipboard of X11 belongs to the program that copied last; a text has to be asked for and comes when that program
// gets round to it. So a thread with a connection of its own asks, and waits for nothing but the next message.

namespace {

/// What is longer than this comes in pieces, or is cut off: it is no word.
constexpr uint32_t longest_in_words_of_4 = 1024;

class X11Clipboard final {
  public:
    explicit X11Clipboard(x11::Connection connection)
        : connection_(std::move(connection)), window_(xcb_generate_id(connection_.get())) {
        xcb_connection_t *c = connection_.get();
        clipboard_ = x11::atom(c, "CLIPBOARD");
        targets_ = x11::atom(c, "TARGETS");
        for (size_t i = 0; i < kinds_.size(); ++i) {
            const char *name =
                i < clipboard_text::targets.size() ? clipboard_text::targets[i] : clipboard_text::compound;
            kinds_[i] = {x11::atom(c, name), name};
        }
        pieces_ = x11::atom(c, "INCR");
        answer_ = x11::atom(c, "ZIMBORA_CLIPBOARD");
        secrets_ = {x11::atom(c, "x-kde-passwordManagerHint"),
                    x11::atom(c, "ExcludeClipboardContentFromMonitorProcessing")};
        xcb_create_window(c, 0, window_, x11::root_of(c), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                          XCB_COPY_FROM_PARENT, 0, nullptr);
        const auto version = xcb_xfixes_query_version(c, 1, 0);
        const x11::Owned<xcb_xfixes_query_version_reply_t> known(xcb_xfixes_query_version_reply(c, version, nullptr));
        const xcb_query_extension_reply_t *extension = xcb_get_extension_data(c, &xcb_xfixes_id);
        if (known && extension)
            owner_changed_ = extension->first_event + XCB_XFIXES_SELECTION_NOTIFY;
        xcb_xfixes_select_selection_input(c, window_, clipboard_, XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER);
        ask(targets_);
    }

    [[nodiscard]] int descriptor() const { return xcb_get_file_descriptor(connection_.get()); }
    [[nodiscard]] bool gone() const { return xcb_connection_has_error(connection_.get()) != 0; }

    /// Deals with all messages that have come. Returns a text when one of them brought one.
    std::optional<ClipboardText> take_messages() {
        std::optional<ClipboardText> newest;
        while (const x11::Owned<xcb_generic_event_t> message{xcb_poll_for_event(connection_.get())}) {
            const int kind = message->response_type & 0x7f;
            const void *content = message.get();
            if (kind == owner_changed_) {
                was_there_ = false;
                asked_at_ = static_cast<const xcb_xfixes_selection_notify_event_t *>(content)->selection_timestamp;
                ask(targets_);
            } else if (kind == XCB_SELECTION_NOTIFY) {
                if (auto text = take(*static_cast<const xcb_selection_notify_event_t *>(content)))
                    newest = std::move(text);
            }
        }
        return newest;
    }

  private:
    void ask(xcb_atom_t target) {
        xcb_convert_selection(connection_.get(), window_, clipboard_, target, answer_, asked_at_);
        xcb_flush(connection_.get());
    }

    std::optional<ClipboardText> take(const xcb_selection_notify_event_t &answer) {
        // A slow answer of the owner before is of no use any more.
        if (answer.time != asked_at_ || answer.property == XCB_ATOM_NONE)
            return std::nullopt;
        const auto request = xcb_get_property(connection_.get(), 0, window_, answer_, XCB_GET_PROPERTY_TYPE_ANY, 0,
                                              longest_in_words_of_4);
        const x11::Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_.get(), request, nullptr));
        // Deleting an answer that comes in pieces would ask for the first one.
        if (!reply || reply->type == pieces_)
            return std::nullopt;
        xcb_delete_property(connection_.get(), window_, answer_);
        xcb_flush(connection_.get());
        if (reply->bytes_after > 0)
            return std::nullopt;
        const auto length = static_cast<size_t>(xcb_get_property_value_length(reply.get()));
        const void *value = xcb_get_property_value(reply.get());
        if (answer.target == targets_ && reply->format == 32) {
            ask_for_text_among({static_cast<const xcb_atom_t *>(value), length / sizeof(xcb_atom_t)});
            return std::nullopt;
        }
        const QByteArrayView bytes(static_cast<const char *>(value), static_cast<qsizetype>(length));
        const auto text = clipboard_text::decode(name_of(reply->type), bytes);
        return text ? std::optional(ClipboardText{*text, was_there_}) : std::nullopt;
    }

    [[nodiscard]] QByteArrayView name_of(xcb_atom_t kind) const {
        const auto known =
            std::find_if(kinds_.cbegin(), kinds_.cend(), [kind](const Kind &one) { return one.atom == kind; });
        return known == kinds_.cend() ? QByteArrayView() : QByteArrayView(known->name);
    }

    void ask_for_text_among(std::span<const xcb_atom_t> offered) {
        const auto is_offered = [offered](xcb_atom_t target) {
            return std::find(offered.begin(), offered.end(), target) != offered.end();
        };
        if (std::any_of(secrets_.begin(), secrets_.end(), is_offered))
            return;
        const auto targets_end = kinds_.cbegin() + clipboard_text::targets.size();
        const auto best =
            std::find_if(kinds_.cbegin(), targets_end, [&](const Kind &kind) { return is_offered(kind.atom); });
        if (best != targets_end)
            ask(best->atom);
    }

    /// A kind of text.
    struct Kind {
        xcb_atom_t atom = XCB_ATOM_NONE;
        const char *name = nullptr;
    };

    x11::Connection connection_;
    xcb_window_t window_;
    xcb_atom_t clipboard_ = XCB_ATOM_NONE;
    xcb_atom_t targets_ = XCB_ATOM_NONE;
    /// Those that are asked for, the best first, and behind them the one that may come instead.
    std::array<Kind, clipboard_text::targets.size() + 1> kinds_{};
    xcb_atom_t pieces_ = XCB_ATOM_NONE;
    xcb_atom_t answer_ = XCB_ATOM_NONE;
    std::array<xcb_atom_t, 2> secrets_{};
    int owner_changed_ = -1;
    xcb_timestamp_t asked_at_ = XCB_CURRENT_TIME;
    bool was_there_ = true;
};

class X11ClipboardWatch final : public ClipboardWatch {
  public:
    /// `end` is an event descriptor, which this object closes.
    X11ClipboardWatch(x11::Connection connection, int end) : end_(end) {
        thread_ = std::thread([this, clipboard = X11Clipboard(std::move(connection))]() mutable { run(clipboard); });
    }

    ~X11ClipboardWatch() override {
        const uint64_t one = 1;
        [[maybe_unused]] const auto written = ::write(end_, &one, sizeof one);
        thread_.join();
        ::close(end_);
    }

    X11ClipboardWatch(const X11ClipboardWatch &) = delete;
    X11ClipboardWatch &operator=(const X11ClipboardWatch &) = delete;

    std::optional<ClipboardText> text() override {
        const std::lock_guard lock(mutex_);
        return text_;
    }

  private:
    void run(X11Clipboard &clipboard) {
        std::array<pollfd, 2> waited{pollfd{clipboard.descriptor(), POLLIN, 0}, pollfd{end_, POLLIN, 0}};
        while (waited[1].revents == 0 && !clipboard.gone()) {
            // Messages that came along with an answer are in memory already; only then may the thread sleep.
            if (auto text = clipboard.take_messages()) {
                const std::lock_guard lock(mutex_);
                text_ = std::move(text);
            }
            ::poll(waited.data(), waited.size(), -1);
        }
    }

    int end_;
    std::mutex mutex_;
    std::optional<ClipboardText> text_;
    std::thread thread_;
};

class NoClipboard final : public ClipboardWatch {
  public:
    std::optional<ClipboardText> text() override { return std::nullopt; }
};

}  // namespace

std::unique_ptr<ClipboardWatch> watch_clipboard() {
    if (x11::Connection connection = x11::connect()) {
        if (const int end = ::eventfd(0, EFD_CLOEXEC); end >= 0)
            return std::make_unique<X11ClipboardWatch>(std::move(connection), end);
    }
    return std::make_unique<NoClipboard>();
}
