# SPDX-FileCopyrightText: 2026 GestureWidget developers
# SPDX-License-Identifier: MIT

"""The parts that the tests in real programs and perform-gestures share."""
