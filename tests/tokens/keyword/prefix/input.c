intx int32 newer _NOEXCEPT_X
