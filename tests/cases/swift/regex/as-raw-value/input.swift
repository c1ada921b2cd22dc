enum E { case a = /{/, b }
