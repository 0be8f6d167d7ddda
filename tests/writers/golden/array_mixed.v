//==== top.v ====
//top bit pair six
//
// synthesis VERILOG_INPUT_VERSION VERILOG_2001
// qelvar message_off 10463



// (legal notice)




//stage HELD=1 d en q
//

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top_mg7i1
	( 
	d,
	en,
	q) /* synthesis synthesis_lumenbox=1 */;
	input   [1:0]  d;
	input   en;
	output   [1:0]  q;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_off
`endif
	tri1   en;
`ifndef QELVAR_RESERVED_TIS
// synopsys translate_on
`endif

	wire  [1:0]  keep;

	assign
		keep = 2'b10,
		q = ((d & keep) ^ {2{en}});
endmodule //top_mg7i1

//synthesis_resources = 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	bit,
	pair,
	q,
	six) /* synthesis synthesis_lumenbox=1 */;
	input   bit;
	input   [1:0]  pair;
	output   [5:0]  q;
	input   [5:0]  six;

	wire  [5:0]   wire_st_d;
	wire  [2:0]   wire_st_en;
	wire  [5:0]   wire_st_q;

	top_mg7i1   st_0
	( 
	.d(wire_st_d[1:0]),
	.en(wire_st_en[0:0]),
	.q(wire_st_q[1:0]));
	top_mg7i1   st_1
	( 
	.d(wire_st_d[3:2]),
	.en(wire_st_en[1:1]),
	.q(wire_st_q[3:2]));
	top_mg7i1   st_2
	( 
	.d(wire_st_d[5:4]),
	.en(wire_st_en[2:2]),
	.q(wire_st_q[5:4]));
	assign
		wire_st_d = {pair, six[5:2]},
		wire_st_en = {pair, bit};
	assign
		q = wire_st_q;
endmodule //top
//VALID FILE
