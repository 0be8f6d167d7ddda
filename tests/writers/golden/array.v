//top d en
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

//synthesis_resources = blk 2 
//synopsys translate_off
`timescale 1 ps / 1 ps
//synopsys translate_on
module  top
	( 
	d,
	en,
	q,
	x,
	y) /* synthesis synthesis_lumenbox=1 */;
	input   [5:0]  d;
	input   en;
	output   [5:0]  q;
	output   x;
	output   y;

	wire  [0:0]   wire_cells_0o;
	wire  [0:0]   wire_cells_1o;
	wire  [5:0]   wire_st_d;
	wire  [5:0]   wire_st_q;

	blk   cells_0
	( 
	.a(d[3:0]),
	.o(wire_cells_0o[0:0]),
	.spare()
	`ifndef FORMAL_VERIFICATION
	// synopsys translate_off
	`endif
	,
	.ena(1'b1)
	`ifndef FORMAL_VERIFICATION
	// synopsys translate_on
	`endif);
	blk   cells_1
	( 
	.a({d[1:0], {2{en}}}),
	.ena(en),
	.o(wire_cells_1o[0:0]),
	.spare());
	top_mg7i1   st_0
	( 
	.d(wire_st_d[1:0]),
	.en(en),
	.q(wire_st_q[1:0]));
	top_mg7i1   st_1
	( 
	.d(wire_st_d[3:2]),
	.en(en),
	.q(wire_st_q[3:2]));
	top_mg7i1   st_2
	( 
	.d(wire_st_d[5:4]),
	.en(en),
	.q(wire_st_q[5:4]));
	assign
		wire_st_d = d;
	assign
		q = wire_st_q,
		x = wire_cells_0o[0:0],
		y = wire_cells_1o[0:0];
endmodule //top
//VALID FILE
