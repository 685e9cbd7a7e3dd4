"""The parts that the tests in real programs and perform-gestures share."""
