// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

/// The vocabulary that every scanner and every scan screen shares.

#include "Core/Scanning/FileSizeCalculator.h"
#include "Core/Scanning/FormattedBytes.h"
#include "Core/Scanning/ProgressThrottle.h"
#include "Core/Scanning/ScanExclusions.h"
#include "Core/Scanning/ScanItem.h"
#include "Core/Scanning/ScanProgress.h"
