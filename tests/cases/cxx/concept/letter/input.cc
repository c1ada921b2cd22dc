template <class T> concept Big = sizeof(T) > 1;
namespace N {
template <class T>
concept
Any = true;
}
