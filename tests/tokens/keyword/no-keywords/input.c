if for while return switch case do else this nullptr goto break
