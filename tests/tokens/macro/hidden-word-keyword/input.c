int NS_ROOT_CLASS getter
