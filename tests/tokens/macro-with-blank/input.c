# macro x
