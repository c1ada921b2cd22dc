bool short int long signed unsigned
float double void __weak __strong register
near NEAR far FAR const volatile
