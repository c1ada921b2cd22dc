a..;bc
a....b
