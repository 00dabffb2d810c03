#pragma once

#include <QPushButton>
#include <QString>

/// Gives a button the drawing resources/media/`rajz`.svg. To be called when the button has its place: the drawing is
/// as large as fits beside its caption.
void rajzol(QPushButton &gomb, const char16_t *rajz);
