1e;a
2.0E+ b
