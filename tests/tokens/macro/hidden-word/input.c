FOO int FOO x FOOL;
