extern inline final static_assert virtual public
protected private operator namespace template delete
override default union @synthesize @property IBOutlet
