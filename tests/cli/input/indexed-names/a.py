def a(): pass
