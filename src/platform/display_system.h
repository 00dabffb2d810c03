#pragma once

/// Chooses the display system that the program can do its work on, where the user has not chosen (QT_QPA_PLATFORM). To
/// be called before the application object is made. One source a system.
///
/// On Linux a Wayland desktop lets no program watch the clipboard or place its windows, as the mini window does; there
/// the program runs through XWayland.
void choose_display_system();
