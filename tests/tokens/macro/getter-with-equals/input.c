getter=a setter=b getter = c setterx
