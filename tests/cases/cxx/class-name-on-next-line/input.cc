class
Widget
{
};
