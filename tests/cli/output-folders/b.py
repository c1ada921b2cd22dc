def b(): pass
