@import Foundation;
@import Foo.Bar;
int x;
