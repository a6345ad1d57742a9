// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>

namespace Korvane {

/// What is wrong with what a screen reader finds in a window, a line each; empty when nothing is.
///
/// Whatever can be acted on has a name that tells it from every other one, a role that fits, its states and its action;
/// whatever can be read is in the tree; headings are headings; bars have a value; decorations are left out; dialogs
/// hold the keyboard.
QStringList accessibleProblems(QQuickWindow* window);

/// What is wrong with the way of the keyboard through a window, a line each; empty when nothing is.
///
/// Tab leads once to whatever takes the keyboard, in the order in which it is read, and back to the first; Shift and
/// Tab the other way; and whatever has the keyboard is drawn differently.
QStringList keyboardProblems(QQuickWindow* window);

/// What an item is drawn of, without the colours and without what only shows where the keyboard is: two states that
/// differ in nothing here are told apart by colour alone.
QStringList shapesOf(const QQuickItem* item);

/// Waits until nothing moves any more, and fails the running test with both kinds of problems. `state` is what the
/// window shows, for the message.
void checkAccess(QQuickWindow* window, const char* state);
/// The same for what is open in front of a window and gone through by the arrow keys: without the way of Tab.
void checkTree(QQuickWindow* window, const char* state);

} // namespace Korvane
