const Range positive((limits<double>::min)(), "POSITIVE");
const Validator<double> number("NUMBER");
std::atomic<int> count(0);
Type function(Other);
const Color blue(table, 0, 0, 255);
Null null(State("null"));
Engine engine(static_cast<unsigned>(seed));
Type plain(A, B);
