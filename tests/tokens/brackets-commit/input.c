a[[b c]] d
