enum E { A = B < C, D = F > G };
