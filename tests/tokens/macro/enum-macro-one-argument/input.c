CF_ENUM(int) { A };
