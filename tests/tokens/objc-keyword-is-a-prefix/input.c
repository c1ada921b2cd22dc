@ends @propertyx
