@interface @implementation @protocol @end @synthesize @property
