#pragma once

#include <QList>
#include <QPushButton>

/// Gives buttons the drawing resources/media/`rajz`.svg, one for all of them. To be called when the buttons have their
/// places: the drawing is as large as fits beside their captions.
void rajzol(const QList<QPushButton *> &gombok, const char16_t *rajz);
