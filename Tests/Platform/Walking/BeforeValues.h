// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace Korvane {

using BeforeValues = void (*)();

/// What is called, on the thread that asks, each time anything in this program asks the kernel for the values of a
/// file; null: nothing. Walks may still be in it when they are over, on threads of the pool.
void setBeforeValues(BeforeValues function);

} // namespace Korvane
