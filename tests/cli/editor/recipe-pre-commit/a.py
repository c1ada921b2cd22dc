def one(): pass
