#pragma once

#include <QRectF>
#include <QVector>
#include <chrono>
#include <functional>
#include <memory>

#include "lookup/widgets/web_browser.h"
#include "platform/clipboard_watch.h"
#include "platform/dialogs.h"
#include "platform/drive_c.h"
#include "platform/information_tool.h"
#include "platform/multimedia_commands.h"
#include "platform/random_numbers.h"
#include "platform/top_most.h"
#include "print/printers.h"
#include "state/global.h"
#include "state/settings_store.h"
#include "ui/window/reference_window.h"
#include "ui/window/window_fitting.h"

/// What the main window and the owners of the other windows are given. Everything referred to must outlive them.
struct szótárkörnyezet {
    global::programállapot &állapot;
    frm_referencia &referencia;
    const Module_hasznos &hasznos;
    MessageBoxes &üzenetek;
    FileDialogs &fájlablakok;
    DriveC meghajtó;
    RandomNumbers &véletlen;
    global::beállítástár &beállítások;
    Printers &nyomtatók;
    TopMost &legfelül;
    MultimediaCommands &multimédia;
    /// Begins to watch the clipboard.
    std::function<std::unique_ptr<ClipboardWatch>()> vágólap;
    /// Places of all screens, in twips.
    std::function<QVector<QRectF>()> képernyők;
    /// Makes the browser of the help viewer.
    WebBrowserFactory böngésző;
    /// Starts the system's information tool.
    std::function<InformationTool()> rendszeradatok;
    /// Lets a moment pass between two steps of an animation.
    std::function<void()> lépésköz;
    /// The same between two steps of a glide, which has four times as many.
    std::function<void()> siklásköz;
    /// The time, for what appears only when something takes long.
    std::function<std::chrono::milliseconds()> óra;
    /// Ends the program.
    std::function<void()> vége;
};
