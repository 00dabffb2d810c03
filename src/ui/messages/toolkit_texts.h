#pragma once

/// Gives the toolkit's own texts (dialog buttons, file dialog, context menus) in Hungarian: its translation, and beside
/// it the few texts that the translation lacks. Call once, before the first window.
void make_toolkit_hungarian();
