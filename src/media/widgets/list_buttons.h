#pragma once

#include <QList>
#include <QPushButton>

/// Gives buttons the drawing resources/media/`rajz`.svg, one for all of them. To be called when the buttons have their
/// places: the drawing is as large as fits beside their captions.
void rajzol(const QList<QPushButton *> &gombok, const char16_t *rajz);

/// Enables or disables a button that acts on a list. One that is pressed by the keyboard and has nothing left to do
/// gives the keyboard to its list: the next press must not land on another button.
void engedélyez(QPushButton &gomb, bool lehet, QWidget &lista);
