def c(): pass
