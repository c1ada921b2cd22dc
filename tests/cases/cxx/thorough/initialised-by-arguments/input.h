const Range positive((limits<double>::min)(), "POSITIVE");
const Validator<double> number("NUMBER");
std::atomic<int> count(0);
Type function(Other);
