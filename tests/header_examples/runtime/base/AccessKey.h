struct TItem;
