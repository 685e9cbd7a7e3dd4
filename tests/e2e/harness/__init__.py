"""What the tests in real programs, and perform-gestures, are made of."""
