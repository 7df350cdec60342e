extern const qz::TPropInfo& Prop;
extern void* Room;
